// Stories of the captured mouse.
#ifndef TESTS_SUPPORT_VIEW_STORY_H_
#define TESTS_SUPPORT_VIEW_STORY_H_

#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// Items for a shooter's keymap, all without throttles. Pixels are those of the usual display of 1280 x 720.
class ViewStory : public Story {
 protected:
  // Of the callbacks, these stories use only the status.
  ViewStory() {
    Host().table.OnEscapeKeyOccupied = nullptr;
    Host().table.OnMappedDeviceUsed = nullptr;
  }

  // Key F. Centre (640, 360); the user range is half the display: x from 320 to 960, y from 180 to 540.
  tavikeymapmanager::StaringConfigItem* AddStaring() {
    auto* item = Add<tavikeymapmanager::StaringConfigItem>("Staring", "F", {0.5, 0.5});
    item->range_size = {0.5, 0.5};
    item->range_mode = "Infinite";
    return item;
  }
  // The left button. Press point (960, 540); no limit.
  tavikeymapmanager::FireConfigItem* AddFire() {
    auto* item = Add<tavikeymapmanager::FireConfigItem>("Fire", "Mouse Left", {0.75, 0.75});
    item->range_mode = "Fire_range_unlimited";
    item->relative_mode = true;
    return item;
  }
  // Key E unless another is named. Press point (320, 360).
  tavikeymapmanager::ObserveConfigItem* AddObserve(const QString& key = "E") {
    return Add<tavikeymapmanager::ObserveConfigItem>("Observe", key, {0.25, 0.5});
  }

  // Enters view control after a load, and clears its line and callback.
  void Stare() {
    Load();
    Play("down F; up F");
    Forget();
  }
  // The left button, wherever the pointer is.
  void PressFire() { Play("mouse down left 100,100"); }
  void ReleaseFire() { Play("mouse up left 100,100"); }
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_VIEW_STORY_H_
