// Helpers for the tests of aimed casts.
#ifndef TESTS_SIMULATORS_CAST_SPELL_STORY_H_
#define TESTS_SIMULATORS_CAST_SPELL_STORY_H_

#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// A spell on Q with its button at (960, 540). The character's circle is around (640, 360) with a radius of
// 0.5 * 720 = 360; the button's has a radius of 0.1, which is 72 in height and 128 in width. With the pointer one pixel
// of the first is 0.1 / 0.5 = 0.2 pixels of the second.
class SpellStory : public Story {
 protected:
  tavikeymapmanager::SpellConfigItem* AddSpell(const QString& trigger, const QString& location,
                                               const QString& key = QStringLiteral("Q")) {
    auto* item = Add<tavikeymapmanager::SpellConfigItem>(tavikeymapmanager::keywords::kTypeSpell, key, {0.75, 0.75});
    item->trigger = trigger;
    item->touch_location = location;
    item->circle_size = 0.5;
    item->swipe_radius = 0.1;
    return item;
  }

  // On C, at (1152, 72).
  tavikeymapmanager::SpellCancelConfigItem* AddCancel(int delay_ms) {
    auto* item = Add<tavikeymapmanager::SpellCancelConfigItem>(tavikeymapmanager::keywords::kTypeSpellCancel,
                                                               QStringLiteral("C"), {0.9, 0.1});
    item->cancel_immediately = true;
    item->cancel_delay_ms = delay_ms;
    return item;
  }

  // A walk on W, A, S, D around (256, 360) with a radius of 0.1 * 1280 = 128 that jumps there 10 ms after its press.
  tavikeymapmanager::SwipeholdConfigItem* AddWalk() {
    auto* item =
        Add<tavikeymapmanager::SwipeholdConfigItem>(tavikeymapmanager::keywords::kTypeSwipehold, {}, {0.2, 0.5});
    MakeWalk(item);
    return item;
  }
  static void MakeWalk(tavikeymapmanager::SwipeholdConfigItem* item) {
    item->key_up = Key(QStringLiteral("W"));
    item->key_left = Key(QStringLiteral("A"));
    item->key_down = Key(QStringLiteral("S"));
    item->key_right = Key(QStringLiteral("D"));
    item->press_mode = tavikeymapmanager::keywords::kPressClick;
    item->subsequent_mode = tavikeymapmanager::keywords::kSubsequentClick;
    item->first_press_delay_ms = 10;
    item->radius = 0.1;
  }

  void PointTo(int x, int y) { Time().SetPointer({x, y}); }

  // Lines of the spell's finger.
  static QString At(int ms, int x, int y) {
    return QStringLiteral("%1ms 1:SLOTPRESS:6:6:1:1:%2:%3").arg(ms).arg(x).arg(y);
  }
  static QString Lift(int ms) { return QStringLiteral("%1ms 1:SLOTRELEASE:6").arg(ms); }
};

}  // namespace taviinputmanager

#endif  // TESTS_SIMULATORS_CAST_SPELL_STORY_H_
