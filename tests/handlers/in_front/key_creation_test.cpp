// A host overrides the keymap library's function that creates keys: the override is called at each event.
#include "handlers/keymap_origin.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace tavikeymapmanager {

namespace {

QStringList made;  // "keyboard 48"
int added_to_codes = 0;

}  // namespace

ConfigKey CreateConfigKey(QString device, int virtual_key, int scancode) {
  made.append(device + QLatin1Char(' ') + QString::number(scancode));
  return {device, QStringLiteral("a key"), virtual_key, scancode + added_to_codes};
}

}  // namespace tavikeymapmanager

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::made;

class KeysByTheHost : public Story {
 protected:
  static std::string Made() { return std::exchange(made, {}).join(", ").toStdString(); }
};

TEST_F(KeysByTheHost, AreToldFromTheLibrarys) { EXPECT_FALSE(IsKeyCreationOwn()); }

// B has the scan code 48.
TEST_F(KeysByTheHost, AreMadeAnewAtEachEvent) {
  Load();
  made.clear();
  Play("down B; up B; down B; up B");
  EXPECT_EQ("keyboard 48, keyboard 48, keyboard 48, keyboard 48", Made());
}

TEST_F(KeysByTheHost, AreMadeAnewForButtons) {
  Load();
  made.clear();
  Play("mouse down left 640,360; wait 10; move 650,360; mouse up left 650,360");
  EXPECT_EQ("mouse 1, mouse 1, mouse 1, mouse 1, mouse 1", Made())
      << "a press and a release ask whether an item has the button, and which; the move whether one has it";
}

// Earlier results do not count: 48 is B, 49 is N.
TEST_F(KeysByTheHost, MayChangeTheirMind) {
  Add<ConfigItem>("Click", "N", {0.5, 0.5});
  Load();
  Play("down B; up B");
  Forget();
  tavikeymapmanager::added_to_codes = 1;
  Play("down B");
  tavikeymapmanager::added_to_codes = 0;
  EXPECT_WIRE("0ms 1:SLOTPRESS:11:11:1:1:640:360");
}

}  // namespace
}  // namespace taviinputmanager
