#include "keymapmanager/keys/pad_names.h"

#include "keymapmanager/keys/key_table.h"
#include "qt/numbers.h"

namespace tavikeymapmanager {

namespace {

constexpr int kLastButtonNumber = 14;

}  // namespace

QString PadTextFromName(const QString& name) {
  for (const PadKeyRow& row : PadKeys()) {
    if (row.name == name) return row.text;
  }
  return name;
}

QString PadNameFromText(const QString& text) {
  for (const PadKeyRow& row : PadKeys()) {
    if (row.text == text) return row.name;
  }
  return text;
}

QStringList PadNames() {
  QStringList names;
  for (const PadKeyRow& row : PadKeys()) names += row.name;
  return names;
}

bool IsUsualPadText(const QString& text) {
  for (const PadKeyRow& row : PadKeys()) {
    if (row.text == text) return true;
  }
  bool is_number = false;
  const int number = qt::ToInt(text, &is_number);
  return is_number && number >= 0 && number <= kLastButtonNumber;
}

}  // namespace tavikeymapmanager
