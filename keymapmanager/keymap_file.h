// Reads keymap files with full diagnostics. For checkers, editors and overlays.
//
// The loader functions of the contract (keymap/keymap_functions.h) read the same files and return only the config.
#ifndef KEYMAPMANAGER_KEYMAP_FILE_H_
#define KEYMAPMANAGER_KEYMAP_FILE_H_

#include <memory>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "keymap/keymap_config.h"
#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// An error or a warning, with its position in the file.
struct TAVI_KEYMAP_RECORD Diagnostic {
  // How severe a diagnostic is.
  enum class Severity {
    kError,    // the file cannot be used: the config has default settings and no items
    kWarning,  // the file can be used, but part of it is not what its author meant
  };

  Severity severity = Severity::kError;  // how severe it is
  QString file;                          // as given to the reader
  int line = 1;                          // from 1
  int column = 1;                        // from 1, in characters
  int end_line = 1;                      // just after the last character; equal to the start if there is no extent
  int end_column = 1;                    // likewise
  QString message;                       // one line, without the position
};

// The position of an item in the file, and its author's label for it.
struct TAVI_KEYMAP_RECORD ItemSource {
  int line = 1;    // from 1
  int column = 1;  // from 1, in characters
  QString label;   // for overlays; empty if the file has none
};

// The result of reading a file.
struct TAVI_KEYMAP_RECORD LoadResult {
  // Whether one of the diagnostics is an error.
  bool HasErrors() const {
    for (const Diagnostic& diagnostic : diagnostics) {
      if (diagnostic.severity == Diagnostic::Severity::kError) return true;
    }
    return false;
  }

  std::unique_ptr<KeymapConfig> config;  // never null, both settings records set
  QString name;                          // the keymap's own name, for display
  QString package;                       // the app that the keymap is for, as Android names it; empty for any
  QVector<ItemSource> item_sources;      // one for each of config->items, in the same order
  QVector<Diagnostic> diagnostics;       // in the order of the file
  QByteArray text;                       // the text that the above describes; empty if it cannot be read or is too long
};

// Larger keymaps are refused. In bytes.
constexpr qint64 kMostKeymapBytes = 1024 * 1024;

// Reads the keymap at `path`. Refuses pipes and devices, which could block. An empty path means no keymap, the
// reserved system name the built-in system keymap; both give no diagnostics. A syntax error is reported alone, errors
// in the content all at once. Any thread.
TAVI_KEYMAP_EXPORT LoadResult ReadKeymapFile(const QString& path);

// The same for a text in memory. `file` is the name that the diagnostics contain. Any thread.
TAVI_KEYMAP_EXPORT LoadResult ReadKeymapText(const QByteArray& text, const QString& file);

// "file:line:column: error: message", the form that compilers print and editors parse.
TAVI_KEYMAP_EXPORT QString FormatDiagnostic(const Diagnostic& diagnostic);

// The JSON Schema of keymap files, generated from the tables that the reader uses.
TAVI_KEYMAP_EXPORT QByteArray KeymapFileSchema();

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYMAP_FILE_H_
