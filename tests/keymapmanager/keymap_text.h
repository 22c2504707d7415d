// Helpers for tests of keymap files: the text, the result, the diagnostics.
#ifndef TESTS_KEYMAPMANAGER_KEYMAP_TEXT_H_
#define TESTS_KEYMAPMANAGER_KEYMAP_TEXT_H_

#include <gtest/gtest.h>
#include <string>

#include <QByteArray>
#include <QStringList>

#include "keymap/tavikeymapmanager.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"

namespace tavikeymapmanager {

inline LoadResult Read(const QByteArray& text) { return ReadKeymapText(text, QStringLiteral("test.yaml")); }

// The items of a keymap, one "- {...}" per line; they begin on line 3.
inline LoadResult ReadItems(const QByteArray& items) { return Read("format: 1\nitems:\n" + items); }

// All diagnostics, as "line:column severity: message" lines.
inline std::string Said(const LoadResult& result) {
  QStringList lines;
  for (const Diagnostic& diagnostic : result.diagnostics) {
    const bool is_error = diagnostic.severity == Diagnostic::Severity::kError;
    lines += QString::number(diagnostic.line) + QLatin1Char(':') + QString::number(diagnostic.column) +
             (is_error ? QStringLiteral(" error: ") : QStringLiteral(" warning: ")) + diagnostic.message;
  }
  return lines.join(QLatin1Char('\n')).toStdString();
}

// A keymap with one item and without diagnostics.
class OneItem {
 public:
  explicit OneItem(const QByteArray& item) : result_(ReadItems("- {" + item + "}\n")) { EXPECT_EQ("", Said(result_)); }

  // A copy of the item as its expected class, or a failure.
  template <typename Item>
  Item As() const {
    if (result_.config->items.size() != 1) return {};
    const auto* item = dynamic_cast<const Item*>(result_.config->items.first());
    EXPECT_NE(nullptr, item);
    return item == nullptr ? Item() : *item;
  }

 private:
  LoadResult result_;
};

inline ConfigKey KeyOf(const char* name) { return KeyFromName(QString::fromUtf8(name)).value_or(ConfigKey()); }

// Keys are compared by their names, so that a failure is easier to read.
inline std::string NameOf(const ConfigKey& key) { return NameOfKey(key).toStdString(); }

}  // namespace tavikeymapmanager

#endif  // TESTS_KEYMAPMANAGER_KEYMAP_TEXT_H_
