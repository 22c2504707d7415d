#include "keymapmanager/key_names.h"

#include <QRegularExpression>

#include "keymapmanager/keys/foreign_key_names.h"
#include "keymapmanager/keys/key_index.h"
#include "keymapmanager/keys/key_table.h"
#include "keymapmanager/keys/pad_names.h"
#include "keymapmanager/nearest_word.h"

namespace tavikeymapmanager {

namespace {

const QString kScanPrefix = QStringLiteral("Scan ");

// "Scan 200": a number without sign or leading zero.
std::optional<ConfigKey> ScanKeyFromName(const QString& name) {
  const QString digits = name.mid(kScanPrefix.size());
  bool is_number = false;
  const int scancode = digits.toInt(&is_number);
  if (!is_number || digits != QString::number(scancode)) return {};
  if (scancode < 1 || scancode >= kScancodeCount) return {};
  return KeyIndex::Get().KeyboardKey(scancode);
}

// One button, or the two of a pair: the held one, "+", the pressed one. Empty for anything else.
QStringList PadParts(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A([^\\s+]+)(?: ?\\+ ?([^\\s+]+))?\\z"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  const QRegularExpressionMatch match = form.match(text);
  if (!match.hasMatch()) return {};
  QStringList parts(match.captured(1));
  if (match.capturedLength(2) > 0) parts += match.captured(2);
  return parts;
}

std::optional<ConfigKey> PadKeyFromName(const QString& name) {
  QStringList parts = PadParts(name.mid(kPadPrefix.size()));
  if (parts.isEmpty()) return {};
  for (QString& part : parts) part = PadTextFromName(part);
  return JoystickKey(parts.join(QLatin1Char('+')));
}

// A key that differs from its neighbours in one part of its name is suggested only if each part is close: not `Wheel
// Up` for `Scroll Up`, nor `F24` for `F25`.
bool MayBeMeant(const QString& word, const QString& name) {
  static const QRegularExpression no_digits(QStringLiteral("[^0-9]"));
  if (QString(word).remove(no_digits) != QString(name).remove(no_digits)) return false;
  const QStringList words = word.simplified().split(QLatin1Char(' '));
  const QStringList names = name.split(QLatin1Char(' '));
  if (words.size() != names.size())
    return !NearestWord(QString(word).remove(QLatin1Char(' ')), {names.join(QString())}).isEmpty();
  for (int i = 0; i < words.size(); ++i) {
    if (NearestWord(words[i], {names[i]}).isEmpty()) return false;
  }
  return true;
}

}  // namespace

std::optional<ConfigKey> KeyFromName(const QString& name) {
  if (name.startsWith(kPadPrefix)) return PadKeyFromName(name);
  if (name.startsWith(kScanPrefix)) return ScanKeyFromName(name);
  return KeyIndex::Get().Find(name);
}

QString NameOfKey(const ConfigKey& key) {
  if (key.device != keywords::kDeviceJoystick) return KeyIndex::Get().TextOf(key.device, key.virtual_key, key.scancode);
  QStringList parts = PadParts(key.text);
  if (parts.isEmpty()) return {};
  for (QString& part : parts) part = PadNameFromText(part);
  return kPadPrefix + parts.join(QLatin1Char('+'));
}

QStringList AllKeyNames() { return KeyIndex::Get().Names(); }

QStringList OtherNamesOfKey(const ConfigKey& key) {
  if (key.device != keywords::kDeviceKeyboard) return {};
  for (const KeyboardKeyRow& row : KeyboardKeys()) {
    if (row.scancode == key.scancode && row.alias != nullptr) return {QString::fromLatin1(row.alias)};
  }
  return {};
}

QString NearestKeyName(const QString& word) {
  const QString elsewhere = KeyNameFromElsewhere(word);
  if (!elsewhere.isEmpty()) return elsewhere;
  QStringList candidates;
  for (const QString& name : AllKeyNames()) {
    if (MayBeMeant(word, name)) candidates += name;
  }
  return NearestWord(word, candidates);
}

ConfigKey JoystickKey(const QString& text) {
  ConfigKey key;
  key.device = keywords::kDeviceJoystick;
  key.text = text;
  return key;
}

}  // namespace tavikeymapmanager
