#include "keymapmanager/checks/pause_checks.h"

#include <algorithm>

#include "keymap/joystick_left_walk_config_item.h"
#include "keymap/mouse_right_walk_config_item.h"
#include "keymap/spell_config_item.h"
#include "keymap/swipehold_config_item.h"

namespace tavikeymapmanager {

namespace {

constexpr int kLongestPauseMs = 2000;

// The sleeps between the steps of a slide. Both values come from files, at most a minute and a thousand.
int SlideMs(int steps, int step_ms) { return std::max(0, steps - 1) * step_ms; }

int PauseOfSpell(const SpellConfigItem& spell) {
  const bool has_slow_start = spell.mode == keywords::kModeCurve && spell.curve_enabled;
  const int start = has_slow_start ? SlideMs(spell.curve_steps, spell.curve_step_ms) : spell.press_hold_ms;
  return start + SlideMs(spell.swipe_steps, spell.swipe_step_ms);
}

int PauseOfRightWalk(const MouseRightWalkConfigItem& walk) {
  return walk.press_hold_ms + SlideMs(walk.swipe_steps, walk.swipe_step_ms);
}

int PauseOfLeftStickWalk(const JoystickLeftWalkConfigItem& walk) {
  const int start = walk.smooth_start ? walk.press_hold_ms : 0;
  const int stop = walk.delayed_stop ? walk.stop_settle_ms : 0;
  return std::max(start, stop);
}

// A press that comes too early sleeps for the rest of the gap; with a rest on the centre there is no gap.
int PauseOfSwipehold(const SwipeholdConfigItem& walk) { return walk.hold_center_ms == 0 ? walk.press_gap_ms : 0; }

// The longest time that a press or release of the item sleeps.
int PauseOf(const ConfigItem* item) {
  if (const auto* spell = dynamic_cast<const SpellConfigItem*>(item)) return PauseOfSpell(*spell);
  if (const auto* walk = dynamic_cast<const MouseRightWalkConfigItem*>(item)) return PauseOfRightWalk(*walk);
  if (const auto* walk = dynamic_cast<const JoystickLeftWalkConfigItem*>(item)) return PauseOfLeftStickWalk(*walk);
  if (item->type != keywords::kTypeSwipehold) return 0;
  return PauseOfSwipehold(static_cast<const SwipeholdConfigItem&>(*item));
}

}  // namespace

void PauseChecks::Check(const SourcedItem& sourced) {
  const int pause_ms = PauseOf(sourced.item.get());
  if (pause_ms <= kLongestPauseMs) return;
  diagnostics_->Warning(sourced.node->span,
                        QStringLiteral("this %1 blocks all input for %2 ms: its steps and delays add up")
                            .arg(sourced.item->type)
                            .arg(pause_ms));
}

}  // namespace tavikeymapmanager
