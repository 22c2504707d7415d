// Heap allocations of events: none, once all lasting objects exist.
#include <functional>

#include <QKeyEvent>

#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/allocation_count.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::ComposableConfigItem;
using tavikeymapmanager::MacroConfigItem;
using tavikeymapmanager::StaringConfigItem;

int lines = 0;

class Allocations : public Story {
 protected:
  void SetUp() override {
    if (!test::CountsAllocations()) GTEST_SKIP() << "a sanitizer has a heap of its own";
    lines = 0;
  }
  void TearDown() override { Forget(); }

  // Loads, and from then on does not log the host's calls, because the log is on the heap.
  void LoadQuietly() {
    Load();
    Host().table.OnMappedDeviceUsed = nullptr;
    Host().table.OnEscapeKeyOccupied = nullptr;
    SetInputEventSendFunc(reinterpret_cast<void*>(+[](const char*, int) { ++lines; }));
  }

  // For `events`, the second time, and the lines that they send.
  static std::int64_t Of(const std::function<void()>& events) {
    events();
    lines = 0;
    const std::int64_t before = test::AllocationCount();
    events();
    return test::AllocationCount() - before;
  }

  static void Send(QEvent::Type type, int scancode) {
    QKeyEvent event(type, 0, Qt::NoModifier, static_cast<quint32>(scancode), static_cast<quint32>(scancode), 0);
    OnQtInputEvent(&event);
  }
  static void Tap(int scancode) {
    Send(QEvent::KeyPress, scancode);
    Send(QEvent::KeyRelease, scancode);
  }
};

constexpr int kW = 17;
constexpr int kB = 48;

TEST_F(Allocations, CountsWhatItIsToCount) {
  EXPECT_EQ(1, Of([] { QString::number(12345); }));
}

// A text built with QString::arg takes a block for each of its fields.
TEST_F(Allocations, AMappedTapTakesNone) {
  Add<ComposableConfigItem>("Click", "W", {0.5, 0.5});
  LoadQuietly();
  EXPECT_EQ(0, Of([] { Tap(kW); }));
  EXPECT_EQ(2, lines);
}

TEST_F(Allocations, AKeyThatPassesThroughTakesNone) {
  Settings().keyboard_transparent = true;
  Add<ComposableConfigItem>("Click", "W", {0.5, 0.5});
  LoadQuietly();
  EXPECT_EQ(0, Of([] { Tap(kB); }));
  EXPECT_EQ(2, lines);
}

TEST_F(Allocations, ARelativeMoveOfTheViewTakesNone) {
  Add<StaringConfigItem>("Staring", "W", {0.5, 0.5});
  LoadQuietly();
  Tap(kW);
  OnWindowsWmRelativeInputEvent(0, 0);  // the finger is put down
  EXPECT_EQ(0, Of([] { OnWindowsWmRelativeInputEvent(1, 1); }));
  EXPECT_EQ(1, lines);
}

// Its commands were parsed the first time.
TEST_F(Allocations, AMacroThatIsPlayedAgainTakesNone) {
  auto* macro = Add<MacroConfigItem>("Macro", "W");
  for (int i = 0; i < 50; ++i)
    macro->press_commands << "press_rel:(0.25,0.5)"
                          << "release_rel:(0.25,0.5)";
  LoadQuietly();
  EXPECT_LE(Of([] { Send(QEvent::KeyPress, kW); }), 2);  // its key's name
  EXPECT_EQ(100, lines);
}

}  // namespace
}  // namespace taviinputmanager
