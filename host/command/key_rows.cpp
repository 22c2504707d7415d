#include "host/command/key_rows.h"

#include <QMetaEnum>

#include "keymap/keywords.h"
#include "keymap/scan_codes.h"
#include "keymapmanager/key_names.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

struct QtNameRow {
  const char* name;
  const char* qt_name;  // after "Key_"
};

// The keys with another name in Qt. All others have the same name there, without spaces.
constexpr QtNameRow kQtNames[] = {
    {"Equals", "Equal"},
    {"Left Bracket", "BracketLeft"},
    {"Right Bracket", "BracketRight"},
    {"Enter", "Return"},
    {"Left Ctrl", "Control"},
    {"Right Ctrl", "Control"},
    {"Left Shift", "Shift"},
    {"Right Shift", "Shift"},
    {"Left Alt", "Alt"},
    {"Right Alt", "Alt"},
    {"Left Win", "Meta"},
    {"Right Win", "Meta"},
    {"Grave", "QuoteLeft"},
    {"Print Screen", "Print"},
    {"Kana", "Hiragana_Katakana"},
    {"Yen", "yen"},
    {"Play Pause", "MediaPlay"},
    {"Previous Track", "MediaPrevious"},
    {"Next Track", "MediaNext"},
    {"Numpad Enter", "Enter"},
    {"Numpad Multiply", "Asterisk"},
    {"Numpad Divide", "Slash"},
    {"Numpad Decimal", "Period"},
};

const QString kNumpadPrefix = QStringLiteral("Numpad ");

QString QtNameOf(QString name) {
  for (const QtNameRow& row : kQtNames) {
    if (name == QLatin1String(row.name)) return QLatin1String(row.qt_name);
  }
  if (name.startsWith(kNumpadPrefix)) name.remove(0, kNumpadPrefix.size());
  return name.remove(QLatin1Char(' '));
}

// Empty for a key that Qt does not have.
QString QtKeyOf(const QString& name) {
  const QString qt_key = QStringLiteral("Key_") + QtNameOf(name);
  bool is_known = false;
  QMetaEnum::fromType<Qt::Key>().keyToValue(qt_key.toLatin1().constData(), &is_known);
  return is_known ? qt_key : QString();
}

KeyRow KeyboardRow(const km::ConfigKey& key) {
  KeyRow row;
  row.aliases = km::OtherNamesOfKey(key);
  row.scancode = key.scancode;
  row.virtual_key = key.virtual_key;
  row.linux_code = km::LinuxKeyOfScanCode(key.scancode);
  if (row.linux_code != 0) row.x11_code = row.linux_code + km::kX11KeyOffset;
  row.qt_key = QtKeyOf(km::NameOfKey(key));
  return row;
}

// Buttons have Qt's codes, the wheel's directions codes of their own.
KeyRow MouseRow(const km::ConfigKey& key) {
  KeyRow row;
  row.mouse_code = key.scancode;
  row.qt_key = QString::fromLatin1(QMetaEnum::fromType<Qt::MouseButtons>().valueToKey(key.scancode));
  return row;
}

KeyRow GamepadRow(const km::ConfigKey& key) {
  KeyRow row;
  row.pad_text = key.text;
  return row;
}

KeyRow RowOf(const km::ConfigKey& key) {
  if (key.device == km::keywords::kDeviceJoystick) return GamepadRow(key);
  return key.device == km::keywords::kDeviceMouse ? MouseRow(key) : KeyboardRow(key);
}

}  // namespace

QVector<KeyRow> AllKeyRows() {
  QVector<KeyRow> rows;
  for (const QString& name : km::AllKeyNames()) {
    const auto key = km::KeyFromName(name);
    if (!key) continue;  // every name has one
    KeyRow row = RowOf(*key);
    row.name = name;
    row.device = key->device;
    rows += row;
  }
  return rows;
}

}  // namespace tavi
