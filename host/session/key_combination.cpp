#include "host/session/key_combination.h"

#include <optional>

#include <QKeyEvent>
#include <QStringList>

#include "host/session/native_key.h"
#include "keymap/keywords.h"
#include "keymapmanager/key_names.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

struct ModifierRow {
  const char* name;
  Qt::KeyboardModifier modifier;
  const char* keys[2];  // left and right
};

constexpr ModifierRow kModifiers[] = {
    {"Ctrl", Qt::ControlModifier, {"Left Ctrl", "Right Ctrl"}},
    {"Alt", Qt::AltModifier, {"Left Alt", "Right Alt"}},
    {"Shift", Qt::ShiftModifier, {"Left Shift", "Right Shift"}},
    {"Meta", Qt::MetaModifier, {"Left Win", "Right Win"}},
};

Qt::KeyboardModifiers ModifierOf(const QString& name) {
  for (const ModifierRow& row : kModifiers) {
    if (name == QLatin1String(row.name)) return row.modifier;
  }
  return Qt::NoModifier;
}

QString UnknownKey(const QString& name) {
  const QString nearest = km::NearestKeyName(name);
  const QString hint = nearest.isEmpty() ? QString() : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
  return QStringLiteral("\"%1\" is not a key of the keyboard%2").arg(name, hint);
}

}  // namespace

bool KeyCombination::IsKeyOf(const QKeyEvent& event) const { return static_cast<int>(ScanCodeOf(event)) == scancode; }

bool KeyCombination::Matches(const QKeyEvent& event) const {
  return (event.modifiers() & modifiers) == modifiers && IsKeyOf(event);
}

QVector<ModifierKeys> ModifiersOf(const KeyCombination& combination) {
  QVector<ModifierKeys> result;
  for (const ModifierRow& row : kModifiers) {
    if (!combination.modifiers.testFlag(row.modifier)) continue;
    ModifierKeys keys{QLatin1String(row.name), {}};
    for (const char* name : row.keys) keys.scancodes += km::KeyFromName(QLatin1String(name))->scancode;
    result += keys;
  }
  return result;
}

QString ParseKeyCombination(const QString& text, KeyCombination* combination) {
  QStringList parts;
  for (const QString& part : text.split(QLatin1Char('+'))) parts += part.trimmed();
  const QString key_name = parts.takeLast();
  KeyCombination result;
  for (const QString& part : parts) {
    const Qt::KeyboardModifiers modifier = ModifierOf(part);
    if (modifier == Qt::NoModifier) {
      return QStringLiteral("\"%1\" is not a modifier; use Ctrl, Alt, Shift or Meta").arg(part);
    }
    result.modifiers |= modifier;
  }
  const std::optional<km::ConfigKey> key = km::KeyFromName(key_name);
  if (!key || key->device != km::keywords::kDeviceKeyboard) return UnknownKey(key_name);
  result.scancode = key->scancode;
  result.name = (parts << key_name).join(QLatin1Char('+'));
  *combination = result;
  return {};
}

}  // namespace tavi
