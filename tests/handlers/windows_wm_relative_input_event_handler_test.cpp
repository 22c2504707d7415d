#include "handlers/windows_wm_relative_input_event_handler.h"

#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/view_story.h"

namespace taviinputmanager {
namespace {

// In every story the host has put the pointer at (100, 200).
class RelativeInput : public ViewStory {
 protected:
  void PlacePointer() {
    UpdateMousePosition(100, 200);
    Forget();
  }
};

TEST_F(RelativeInput, MovesThePointerInAKeymapWithoutViewControl) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Load();
  PlacePointer();
  Play("rel 5,-3");
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:105:197");
}

TEST_F(RelativeInput, MovesThePointerWhileViewControlIsOff) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  AddStaring();
  Load();
  PlacePointer();
  Play("rel 5,-3");
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:105:197");
  Play("down F; down F");  // on, and off again
  Forget();
  Play("rel 5,-3");
  EXPECT_WIRE("0ms 1:MOUSEMOVE_REL:110:194");
}

TEST_F(RelativeInput, TurnsTheViewWhileViewControlIsOn) {
  AddStaring();
  Stare();
  Play("rel 5,-3; rel 5,-3");
  EXPECT_WIRE("0ms 1:SLOTPRESS:1:1:1:1:640:360", "0ms 1:SLOTPRESS:1:1:1:1:645:357");
}

TEST_F(RelativeInput, NeverMovesThePointerWhileObserving) {
  AddObserve();
  Load();
  Play("down E");
  Forget();
  Play("rel 5,-3");
  EXPECT_WIRE("40ms 1:SLOTPRESS:1:1:1:1:320:360");
}

TEST_F(RelativeInput, IsLostRatherThanGivenToThePointerWhenObservingHasNoItem) {
  Add<tavikeymapmanager::ConfigItem>("Observe", "E");  // of the type, but not of the class
  Load();
  Play("down E; rel 5,-3");
  EXPECT_EQ(InputStatus::Observing, GetInputStatus());
  EXPECT_WIRE_NONE();
}

TEST_F(RelativeInput, TheKeymapsIntervalAndFactorAreThePointersAlone) {
  Settings().mouse_mode = "Mouse_OtherButton_Transparent";
  Settings().relative_interval_ms = 50;
  Settings().relative_factor = 2.0;
  AddStaring();
  Load();
  PlacePointer();
  Wait(50);
  Play("rel 5,5; wait 49; rel 5,5; wait 1; rel 5,5");
  // 100 + 2 * 5 at once; the second is only added up; 110 + 2 * 10 at the end of the interval.
  EXPECT_WIRE("50ms 1:MOUSEMOVE_REL:110:210", "100ms 1:MOUSEMOVE_REL:130:230");
  Play("down F");
  Forget();
  Play("rel 5,5; rel 5,5");
  EXPECT_WIRE("100ms 1:SLOTPRESS:1:1:1:1:640:360", "100ms 1:SLOTPRESS:1:1:1:1:645:365");
}

}  // namespace
}  // namespace taviinputmanager
