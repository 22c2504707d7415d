#include "keymapmanager/fields/key_reader.h"

#include "keymapmanager/key_names.h"
#include "keymapmanager/keys/key_table.h"
#include "keymapmanager/keys/pad_names.h"
#include "keymapmanager/nearest_word.h"
#include "keymapmanager/yaml/yaml_scalar.h"

namespace tavikeymapmanager {

namespace {

const QString kChordSign = QStringLiteral(" + ");

// The name of a key from a scalar. A digit is a number for YAML but a key for the author.
QString KeyNameOf(const YamlNode& node) {
  if (const auto text = TextOf(node)) return *text;
  const auto number = NumberOf(node);
  const bool is_digit = number && *number >= 0 && *number <= 9 && *number == static_cast<int>(*number);
  return is_digit ? QString::number(*number) : QString();
}

// What the author of an unknown name may have meant.
QString HintFor(const QString& name) {
  if (PadNames().contains(name)) return QStringLiteral("; a gamepad's is written '%1'").arg(kPadPrefix + name);
  const QStringList parts = name.split(QLatin1Char('+'));
  if (parts.size() == 2 && KeyFromName(parts[0].trimmed()) && KeyFromName(parts[1].trimmed())) {
    return QStringLiteral("; a chord is written '%1 + %2'").arg(parts[0].trimmed(), parts[1].trimmed());
  }
  const QString nearest = NearestKeyName(name);
  return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(nearest);
}

bool IsStick(const ConfigKey& key) {
  if (key.device != keywords::kDeviceJoystick) return false;
  return key.text == keywords::kLeftStick || key.text == keywords::kRightStick;
}

}  // namespace

void KeyReader::ReadKey(const YamlNode& node, ConfigKey* key) {
  ConfigKey read;
  const QString name = KeyNameOf(node);
  if (name.contains(kChordSign) && !name.startsWith(kPadPrefix)) {
    Fail(node, QStringLiteral("expected one key, not a chord"));
    return;
  }
  if (ReadAny(node, &read) && !RefuseStick(node, read)) *key = read;
}

void KeyReader::ReadChord(const YamlNode& node, ConfigKey* first_key, ConfigKey* key) {
  const QString name = KeyNameOf(node);
  const QStringList parts = name.split(kChordSign);
  if (parts.size() == 1 || name.startsWith(kPadPrefix)) {
    ReadKey(node, key);
    return;
  }
  if (parts.size() > 2) {
    Fail(node, QStringLiteral("a chord has two keys, this one has %1").arg(parts.size()));
    return;
  }
  ConfigKey first, second;
  if (!ReadButton(node, parts[0], &first) || !ReadButton(node, parts[1], &second)) return;
  *first_key = first;
  *key = second;
}

void KeyReader::ReadStick(const YamlNode& node, const QString& name, ConfigKey* key) {
  ConfigKey read;
  if (!ReadAny(node, &read)) return;
  if (NameOfKey(read) == name) {
    *key = read;
  } else {
    Fail(node, QStringLiteral("the only key of this item is '%1'").arg(name));
  }
}

bool KeyReader::ReadAny(const YamlNode& node, ConfigKey* key) {
  if (node.kind == YamlNode::Kind::kMapping) return ReadCode(node, key);
  const QString name = KeyNameOf(node);
  if (name.isEmpty()) return Fail(node, QStringLiteral("expected a key, got %1").arg(Describe(node)));
  return ReadName(node, name, key);
}

bool KeyReader::ReadName(const YamlNode& node, const QString& name, ConfigKey* key) {
  const auto found = KeyFromName(name);
  if (!found) return Fail(node, QStringLiteral("unknown key '%1'%2").arg(Shown(name), HintFor(name)));
  *key = *found;
  if (name.startsWith(kPadPrefix)) WarnOfUnusualPad(node, *key);
  return true;
}

// One key of a chord.
bool KeyReader::ReadButton(const YamlNode& node, const QString& name, ConfigKey* key) {
  if (!name.startsWith(kPadPrefix)) return ReadName(node, name, key);
  return Fail(node, QStringLiteral("a pair of gamepad buttons is one key, written 'Pad A+B'"));
}

bool KeyReader::ReadCode(const YamlNode& node, ConfigKey* key) {
  if (node.keys.size() == 1) {
    if (node.keys.front().text == QLatin1String("scan")) return ReadScan(node.children.front(), key);
    if (node.keys.front().text == QLatin1String("pad")) return ReadPad(node.children.front(), key);
  }
  return Fail(node, QStringLiteral("expected a key: its name, {scan: <code>} or {pad: <name>}"));
}

bool KeyReader::ReadScan(const YamlNode& node, ConfigKey* key) {
  const auto code = NumberOf(node);
  const bool is_code = code && *code >= 1 && *code < kScancodeCount && *code == static_cast<int>(*code);
  if (!is_code) {
    return Fail(node, QStringLiteral("expected a scan code, a whole number from 1 to %1, got %2")
                          .arg(kScancodeCount - 1)
                          .arg(Describe(node)));
  }
  *key = *KeyFromName(QStringLiteral("Scan %1").arg(static_cast<int>(*code)));
  return true;
}

bool KeyReader::ReadPad(const YamlNode& node, ConfigKey* key) {
  const auto text = TextOf(node);
  if (!text || text->isEmpty()) {
    return Fail(node, QStringLiteral("expected the host's name of a gamepad button, got %1").arg(Describe(node)));
  }
  *key = JoystickKey(*text);
  return true;
}

bool KeyReader::RefuseStick(const YamlNode& node, const ConfigKey& key) {
  if (!IsStick(key)) return false;
  const bool is_left = key.text == keywords::kLeftStick;
  Fail(node, QStringLiteral("a stick is not a button; only a %1 item can use this one")
                 .arg(is_left ? keywords::kTypeLeftStickWalk : keywords::kTypeRightStickEye));
  return true;
}

// The host defines the names of a gamepad, so an unknown name may be correct.
void KeyReader::WarnOfUnusualPad(const YamlNode& node, const ConfigKey& key) {
  for (const QString& part : key.text.split(QLatin1Char('+'))) {
    if (IsUsualPadText(part)) continue;
    diagnostics_->Warning(
        node.span, QStringLiteral("'%1' is not a usual gamepad button%2; {pad: %1} is accepted without a warning")
                       .arg(part, DidYouMean(part, PadNames())));
  }
}

bool KeyReader::Fail(const YamlNode& node, const QString& message) {
  diagnostics_->Error(node.span, message);
  return false;
}

}  // namespace tavikeymapmanager
