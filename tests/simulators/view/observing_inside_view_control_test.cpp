#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ObserveConfigItem;
using tavikeymapmanager::StaringConfigItem;

class ObservingInsideViewControl : public Story {};

// The view's timer continues while the eye icon is held during view control, and releases that contact too.
TEST_F(ObservingInsideViewControl, IsLiftedByThePeriodicReset) {
  auto* view = Add<StaringConfigItem>("Staring", "F", {0.5, 0.5});
  view->range_mode = "Infinite";
  view->auto_reset_period_ms = 100;
  Add<ObserveConfigItem>("Observe", "G", {0.25, 0.25});
  Load();
  Play("down F; wait 10; down G; rel 1,1");  // the key's press takes 40 ms
  EXPECT_WIRE("0ms 1:SLOTRELEASE:1", "10ms 1:SLOTRELEASE:1", "50ms 1:SLOTPRESS:1:1:1:1:320:180");
  Play("wait 49");
  EXPECT_WIRE_NONE();
  Play("wait 1");
  EXPECT_WIRE("100ms 1:SLOTRELEASE:1");
}

}  // namespace
}  // namespace taviinputmanager
