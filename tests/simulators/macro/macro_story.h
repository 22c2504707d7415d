// Stories of macros.
#ifndef TESTS_SIMULATORS_MACRO_MACRO_STORY_H_
#define TESTS_SIMULATORS_MACRO_MACRO_STORY_H_

#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// Points that the stories press, on the usual display of 1280 x 720: (0.25,0.5) is 320,360; (0.5,0.5) is 640,360;
// (0.75,0.5) is 960,360. The fingers of macros are the slots 18 to 25.
class MacroStory : public Story {
 protected:
  // Of the callbacks, these stories use those that macros cause.
  MacroStory() {
    Host().table.OnEscapeKeyOccupied = nullptr;
    Host().table.OnMappedDeviceUsed = nullptr;
  }

  tavikeymapmanager::MacroConfigItem* Macro(const QStringList& press, const QStringList& release = {},
                                            const QString& key = "F1") {
    auto* item = Add<tavikeymapmanager::MacroConfigItem>("Macro", key);
    item->press_commands = press;
    item->release_commands = release;
    return item;
  }
  // A keymap with one macro, whose key is pressed at time zero.
  void Run(const QStringList& press, const QStringList& release = {}) {
    Macro(press, release);
    Load();
    Play("down F1");
  }
};

}  // namespace taviinputmanager

#endif  // TESTS_SIMULATORS_MACRO_MACRO_STORY_H_
