// Keymap files read with all that there is to say about them: for checkers, editors and overlays.
//
// The loader functions of the contract (keymap/keymap_functions.h) read the same files and give the config alone.
#ifndef KEYMAPMANAGER_KEYMAP_FILE_H_
#define KEYMAPMANAGER_KEYMAP_FILE_H_

#include <memory>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "keymap/keymap_config.h"
#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// One finding, at the place in the file that it is about.
struct TAVI_KEYMAP_RECORD Diagnostic {
  // How bad a finding is.
  enum class Severity {
    kError,    // the file cannot be used: the config has default settings and no items
    kWarning,  // the file can be used, but a part of it is not what its author meant
  };

  Severity severity = Severity::kError;  // how bad it is
  QString file;                          // as given to the reader
  int line = 1;                          // from 1
  int column = 1;                        // from 1, in characters
  int end_line = 1;    // the place behind the last character; equal to the start where there is no extent
  int end_column = 1;  // the same
  QString message;     // one line, without the place
};

// Where an item stands in the file, from 1, and what its author calls it.
struct TAVI_KEYMAP_RECORD ItemSource {
  int line = 1;    // from 1
  int column = 1;  // from 1, in characters
  QString label;   // for overlays; empty when the file writes none
};

// What reading a file gives.
struct TAVI_KEYMAP_RECORD LoadResult {
  // Whether one of the findings is an error.
  bool HasErrors() const {
    for (const Diagnostic& diagnostic : diagnostics) {
      if (diagnostic.severity == Diagnostic::Severity::kError) return true;
    }
    return false;
  }

  std::unique_ptr<KeymapConfig> config;  // never null, both settings records set
  QString name;                          // the keymap's own name, for people
  QString package;                       // the guest's app that it is for, as Android names it; empty: any
  QVector<ItemSource> item_sources;      // one for each of config->items, in their order
  QVector<Diagnostic> diagnostics;       // in the order of the file
  QByteArray text;                       // all of the above is of this; empty for what cannot be read or is too long
};

// A keymap of more bytes is refused.
constexpr qint64 kMostKeymapBytes = 1024 * 1024;

// Reads the keymap at `path`, at once: a pipe or a device is refused.  An empty path is "no keymap", the reserved
// system name the built-in system keymap; both give no diagnostics. A syntax error is reported by itself, the errors of
// the content all at once. Any thread.
TAVI_KEYMAP_EXPORT LoadResult ReadKeymapFile(const QString& path);

// The same for a text in memory; `file` is the name that the diagnostics carry.
TAVI_KEYMAP_EXPORT LoadResult ReadKeymapText(const QByteArray& text, const QString& file);

// "file:line:column: error: message", as compilers print it and editors read it.
TAVI_KEYMAP_EXPORT QString FormatDiagnostic(const Diagnostic& diagnostic);

// The JSON Schema of keymap files, made from the tables that the reader itself works by.
TAVI_KEYMAP_EXPORT QByteArray KeymapFileSchema();

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYMAP_FILE_H_
