#include "keymapmanager/checks/keymap_checks.h"

#include "keymap/macro_config_item.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/spell_config_item.h"
#include "keymap/wheel_config_item.h"
#include "keymap/zoom_config_item.h"
#include "keymapmanager/checks/binding_checks.h"
#include "keymapmanager/checks/macro_checks.h"
#include "keymapmanager/checks/pause_checks.h"

namespace tavikeymapmanager {

namespace {

namespace kw = keywords;

// The ticks of slides and pinches by key.
constexpr int kWheelTickMs = 8;
constexpr int kZoomTickMs = 12;

bool IsVirtualJoystick(const QString& type) {
  return type == kw::kTypeVirtualLeftStick || type == kw::kTypeVirtualRightStick ||
         type == kw::kTypeVirtualJoystickButton || type == kw::kTypeVirtualJoystickBunchButton ||
         type == kw::kTypeVirtualLeftStickShiftButton;
}

}  // namespace

void KeymapChecks::Run() {
  BindingChecks(items_, diagnostics_).Run();
  for (const SourcedItem& sourced : items_) {
    if (sourced.is_good) CheckItem(sourced);  // of an invalid item nothing is known
  }
  CheckVirtualJoystick();
}

void KeymapChecks::CheckItem(const SourcedItem& sourced) {
  const ConfigItem* item = sourced.item.get();
  if (item->type == kw::kTypeFire) CheckFire(sourced);
  if (item->type == kw::kTypeSpellCancel) CheckSpellCancel(sourced);
  if (const auto* spell = dynamic_cast<const SpellConfigItem*>(item)) CheckSpell(sourced, *spell);
  if (const auto* wheel = dynamic_cast<const WheelConfigItem*>(item)) {
    CheckRun(sourced, wheel->duration_ms, kWheelTickMs);
  }
  if (const auto* zoom = dynamic_cast<const ZoomConfigItem*>(item)) CheckRun(sourced, zoom->duration_ms, kZoomTickMs);
  PauseChecks(diagnostics_).Check(sourced);
  if (dynamic_cast<const MacroConfigItem*>(item) != nullptr) {
    MacroChecks(diagnostics_).Check(*sourced.node, QStringLiteral("press_commands"));
    MacroChecks(diagnostics_).Check(*sourced.node, QStringLiteral("release_commands"));
  }
}

void KeymapChecks::CheckFire(const SourcedItem& sourced) {
  if (HasItem(kw::kTypeStaring)) return;
  diagnostics_->Warning(
      sourced.node->span,
      QStringLiteral("a Fire item only works during view control, but no Staring item switches that on"));
}

void KeymapChecks::CheckSpellCancel(const SourcedItem& sourced) {
  if (static_cast<const SpellCancelConfigItem&>(*sourced.item).cancel_immediately) return;
  diagnostics_->Warning(sourced.node->span, QStringLiteral("without 'cancel_immediately: true' the key does nothing"));
}

void KeymapChecks::CheckSpell(const SourcedItem& sourced, const SpellConfigItem& spell) {
  const QString inner = QStringLiteral("inner_swipehold");
  const bool has_inner = spell.inner_swipehold.press_mode != kw::kPressTransparent;
  const bool needs_inner = spell.touch_location == kw::kLocationInnerSwipehold;
  if (needs_inner && !has_inner) {
    diagnostics_->Warning(sourced.SpanOf(QStringLiteral("touch_location")),
                          QStringLiteral("nothing aims: '%1' is missing").arg(inner));
  }
  if (has_inner && !needs_inner) {
    diagnostics_->Warning(
        sourced.SpanOf(inner),
        QStringLiteral("without 'touch_location: %1' this walk does nothing").arg(kw::kLocationInnerSwipehold));
  }
  const bool needs_walk = needs_inner || spell.touch_location == kw::kLocationSwipehold;
  if (needs_walk && !HasItem(kw::kTypeSwipehold)) {
    diagnostics_->Warning(sourced.SpanOf(QStringLiteral("touch_location")),
                          QStringLiteral("the walk aims, but there is no Swipehold item"));
  }
  if (!needs_walk) CheckSpellAim(sourced, spell);
}

// The mouse aims through the circle around the character.
void KeymapChecks::CheckSpellAim(const SourcedItem& sourced, const SpellConfigItem& spell) {
  const bool is_aimed = spell.trigger != kw::kTriggerImmediate && spell.mode != kw::kModeCurve;
  if (!is_aimed || (spell.circle_size * spell.circle_percent > 0 && spell.swipe_radius > 0)) return;
  diagnostics_->Warning(sourced.node->span,
                        QStringLiteral("the mouse cannot aim without 'circle_size' and 'swipe_radius' above 0"));
}

// A run of one tick touches without moving, and the next follows at once.
void KeymapChecks::CheckRun(const SourcedItem& sourced, int duration_ms, int tick_ms) {
  if (duration_ms >= tick_ms) return;
  diagnostics_->Warning(sourced.SpanOf(QStringLiteral("duration_ms")),
                        QStringLiteral("this %1 taps without a pause and moves nothing: 'duration_ms' is %2, but must "
                                       "be %3 or more")
                            .arg(sourced.item->type)
                            .arg(duration_ms)
                            .arg(tick_ms));
}

void KeymapChecks::CheckVirtualJoystick() {
  if (wheel_.virtual_joystick) return;
  for (const SourcedItem& sourced : items_) {
    if (!IsVirtualJoystick(sourced.item->type)) continue;
    diagnostics_->Warning(
        sourced.node->span,
        QStringLiteral("the guest has no gamepad for this without 'virtual_joystick: true' in 'wheel'"));
    return;  // once is enough
  }
}

bool KeymapChecks::HasItem(const QString& type) const {
  for (const SourcedItem& sourced : items_) {
    if (sourced.item->type == type) return true;
  }
  return false;
}

}  // namespace tavikeymapmanager
