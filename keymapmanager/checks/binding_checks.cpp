#include "keymapmanager/checks/binding_checks.h"

#include <algorithm>

#include "keymapmanager/key_names.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

// The types that events of each device can start; a keyboard starts every other type.
const QStringList& WheelTypes() {
  static const QStringList types{kw::kTypeClick, kw::kTypeBunchClick, kw::kTypeStaring,          kw::kTypeMacro,
                                 kw::kTypeZoom,  kw::kTypeCurve,      kw::kTypeOperationRecorder};
  return types;
}

const QStringList& PadTypes() {
  static const QStringList types{
      kw::kTypeClick, kw::kTypeBunchClick,        kw::kTypeCurve,         kw::kTypeSpell,        kw::kTypeSpellCancel,
      kw::kTypeMacro, kw::kTypeOperationRecorder, kw::kTypeLeftStickWalk, kw::kTypeRightStickEye};
  return types;
}

bool IsWheel(const ConfigKey& key) {
  return key.device == kw::kDeviceMouse && (key.scancode == kWheelUpCode || key.scancode == kWheelDownCode);
}

// The identity of a key as a text.
QString IdOf(const ConfigKey& key) {
  if (!IsKeySet(key)) return {};
  const bool is_pad = key.device == kw::kDeviceJoystick;
  return key.device + QLatin1Char(':') + (is_pad ? key.text : QString::number(key.scancode));
}

QString IdOf(const Binding& binding) { return IdOf(binding.first_key) + QLatin1Char(';') + IdOf(binding.key); }

QString NameOf(const Binding& binding) {
  const QString name = NameOfKey(binding.key);
  return IsKeySet(binding.first_key) ? NameOfKey(binding.first_key) + QStringLiteral(" + ") + name : name;
}

Binding BindingOf(const SourcedItem& sourced, const Field& field) {
  Binding binding;
  binding.type = sourced.item->type;
  binding.span = sourced.SpanOf(field.name);
  if (field.kind != FieldKind::kChord) {
    binding.key = *std::get<ConfigKey*>(field.target(sourced.item.get()));
    return binding;
  }
  binding.key = sourced.item->key;
  const auto* composable = dynamic_cast<const ComposableConfigItem*>(sourced.item.get());
  if (composable != nullptr) binding.first_key = composable->first_key;
  return binding;
}

bool IsKeyField(const Field& field) {
  return field.kind == FieldKind::kKey || field.kind == FieldKind::kChord || field.kind == FieldKind::kStick;
}

}  // namespace

void BindingChecks::Run() {
  Collect();
  CheckMixedDevices();
  for (const Binding& binding : bindings_) CheckTwice(binding);
  for (const Binding& binding : bindings_) {
    CheckDevice(binding);
    if (IsKeySet(binding.first_key)) CheckChord(binding);
  }
}

void BindingChecks::Collect() {
  for (const SourcedItem& sourced : items_) {
    if (sourced.item->type == kw::kTypeTip) continue;  // a label has no key
    for (const Field& field : sourced.table->fields) {
      if (!IsKeyField(field)) continue;
      const Binding binding = BindingOf(sourced, field);
      if (IsKeySet(binding.key)) bindings_ += binding;
    }
  }
}

// A file is loaded either as the keymap of keyboard and mouse, or as that of the gamepad; keys of the other device have
// no effect. The device with more keys is the intended one; if equal, the first.
void BindingChecks::CheckMixedDevices() {
  const auto is_pad = [](const Binding& binding) { return binding.key.device == kw::kDeviceJoystick; };
  const auto pads = std::count_if(bindings_.begin(), bindings_.end(), is_pad);
  const auto others = bindings_.size() - pads;
  if (pads == 0 || others == 0) return;
  const bool is_pads_keymap = pads > others || (pads == others && is_pad(bindings_.first()));
  const auto stray = std::find_if(bindings_.begin(), bindings_.end(),
                                  [&](const Binding& binding) { return is_pad(binding) != is_pads_keymap; });
  const QString message = is_pads_keymap ? QStringLiteral(
                                               "'%1' has no effect in a gamepad keymap; put it in the one for "
                                               "keyboard and mouse")
                                         : QStringLiteral(
                                               "'%1' has no effect in a keymap for keyboard and mouse; put it in the "
                                               "gamepad keymap");
  diagnostics_->Warning(stray->span, message.arg(NameOf(*stray)));
}

void BindingChecks::CheckTwice(const Binding& binding) {
  const QString id = IdOf(binding);
  const auto found = lines_.constFind(id);
  if (found == lines_.constEnd()) {
    lines_.insert(id, binding.span.line);
    return;
  }
  diagnostics_->Warning(
      binding.span,
      QStringLiteral("'%1' is bound twice; line %2 takes precedence").arg(NameOf(binding), QString::number(*found)));
}

// The first key of a chord waits for the second only if no item uses it.
void BindingChecks::CheckChord(const Binding& binding) {
  const bool is_keyboard = binding.first_key.device == kw::kDeviceKeyboard && binding.key.device == kw::kDeviceKeyboard;
  if (!is_keyboard) {
    diagnostics_->Warning(binding.span, QStringLiteral("a chord must consist of two keyboard keys"));
    return;
  }
  if (IsSameKey(binding.first_key, binding.key)) {
    diagnostics_->Warning(binding.span, QStringLiteral("the two keys of a chord must differ"));
    return;
  }
  Binding alone;
  alone.key = binding.first_key;
  const auto found = lines_.constFind(IdOf(alone));
  if (found == lines_.constEnd()) return;
  diagnostics_->Warning(
      binding.span,
      QStringLiteral("this chord never works: line %1 uses '%2' alone").arg(*found).arg(NameOfKey(binding.first_key)));
}

void BindingChecks::CheckDevice(const Binding& binding) {
  const QString& type = binding.type;
  if (binding.key.device == kw::kDeviceJoystick) {
    if (PadTypes().contains(type)) return;
    diagnostics_->Warning(binding.span, QStringLiteral("a gamepad cannot start %1 items").arg(type));
  } else if (IsWheel(binding.key)) {
    if (WheelTypes().contains(type)) return;
    diagnostics_->Warning(binding.span, QStringLiteral("the wheel cannot start %1 items").arg(type));
  } else {
    CheckMouse(binding);
  }
}

void BindingChecks::CheckMouse(const Binding& binding) {
  const bool is_mouse = binding.key.device == kw::kDeviceMouse;
  const bool is_left = is_mouse && binding.key.scancode == Qt::LeftButton;
  const bool is_fire = binding.type == kw::kTypeFire;
  if (is_fire && !is_left) {
    diagnostics_->Warning(binding.span, QStringLiteral("only 'Mouse Left' can start a Fire"));
  } else if (is_left && !is_fire) {
    diagnostics_->Warning(
        binding.span,
        QStringLiteral("'Mouse Left' cannot start %1 items: it touches, or starts a Fire").arg(binding.type));
  } else if (binding.type == kw::kTypeRightWalk && !is_mouse) {
    diagnostics_->Warning(binding.span, QStringLiteral("only a mouse button can start a RightWalk"));
  }
}

}  // namespace tavikeymapmanager
