// Stories of a walk with four keys.
#ifndef TESTS_SIMULATORS_WALK_SWIPEHOLD_STORY_H_
#define TESTS_SIMULATORS_WALK_SWIPEHOLD_STORY_H_

#include <QPointF>
#include <QString>
#include <QVector>

#include "keymap/swipehold_config_item.h"
#include "tests/support/print_points.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// The stick of the walk is at (1280 * 0.2, 720 * 0.5) = (256, 360). Its radius is 1280 * 0.1 = 128 pixels, diagonally
// 128 * 0.7071... = 90.5, so 91 on each axis. As items come, a slide takes 6 steps: the finger is on the centre at
// once, steps at 32, 48, 64, 80 and 96 ms, and is exactly on the target at 112 ms.
class SwipeholdStory : public Story {
 protected:
  tavikeymapmanager::SwipeholdConfigItem* AddWalk(const QPointF& center = {0.2, 0.5}) {
    auto* item = Add<tavikeymapmanager::SwipeholdConfigItem>("Swipehold", {}, center);
    SetKeys(item, "W", "A", "S", "D");
    return item;
  }

  static void SetKeys(tavikeymapmanager::SwipeholdConfigItem* item, const QString& up, const QString& left,
                      const QString& down, const QString& right) {
    item->key_up = Key(up);
    item->key_left = Key(left);
    item->key_down = Key(down);
    item->key_right = Key(right);
  }

  // W is held, and the contact rests at (256, 232); or D, at (384, 360). It is 200 ms.
  void RestAt(const QString& key) {
    Play("down " + key + "; wait 200");
    Forget();
  }

  void Reset() {
    Play("reset");
    Forget();
  }

  static QString At(int ms, int x, int y, int slot = 2) {
    return QStringLiteral("%1ms 1:SLOTPRESS:%2:%2:1:1:%3:%4").arg(ms).arg(slot).arg(x).arg(y);
  }
  static QString Up(int ms, int slot = 2) { return QStringLiteral("%1ms 1:SLOTRELEASE:%2").arg(ms).arg(slot); }
};

}  // namespace taviinputmanager

#endif  // TESTS_SIMULATORS_WALK_SWIPEHOLD_STORY_H_
