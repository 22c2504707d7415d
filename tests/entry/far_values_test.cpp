// Positions, edges and steps beyond the range of an int: they saturate.
#include <functional>
#include <limits>

#include <QMouseEvent>
#include <QWheelEvent>

#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/tavikeymapmanager.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::MacroConfigItem;
using tavikeymapmanager::MouseRightWalkConfigItem;
using tavikeymapmanager::SpellConfigItem;

constexpr int kHighest = std::numeric_limits<int>::max();
constexpr double kFar = -1e18;  // the lowest int, where pixels pass unchanged

class FarValues : public Story {
 protected:
  FarValues() {
    Host().table.OnMappedDeviceUsed = nullptr;
    Host().table.OnEscapeKeyOccupied = nullptr;
  }
  static void Mouse(QEvent::Type type, const QPointF& place, Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, place, place, button, button, Qt::NoModifier);
    OnQtInputEvent(&event);
  }
  static void Turn(const QPointF& place, int delta, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWheelEvent event(place, place, {}, QPoint(0, delta), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    OnQtInputEvent(&event);
  }
};

// The lowest int is -2147483648.
TEST_F(FarValues, StopAtTheEndsOfAnInt) {
  const struct {
    const char* name;
    std::function<void()> play;
    QStringList lines;
  } rows[] = {
      {"a press",
       [] {
         Mouse(QEvent::MouseButtonPress, {kFar, 360});
       },
       {"SLOTPRESS:1:1:1:1:-2147483648:360"}},
      {"a move of the guest's pointer",
       [this] {
         Settings().mouse_mode = "Mouse_AllButton_Transparent";
         Load();
         Wait(5);
         Mouse(QEvent::MouseMove, {kFar, 360}, Qt::NoButton);
       },
       {"MOUSEMOVE_REL:-2147483648:360"}},
      {"a scroll",
       [] {
         Turn({kFar, 360}, 120);
       },
       {"SLOTPRESS:10:10:1:1:-2147483648:360"}},
      {"a turn that passes through",
       [this] {
         Settings().wheel_transparent = true;
         Load();
         Turn({kFar, 360}, 120);
       },
       {"WHEEL:-2147483648:360:100:0"}},
      // One notch down is minus the lowest int a tick: from -5 to 2147483643.
      {"a scroll by the lowest int a tick",
       [this] {
         Wheel().scroll_step = -1e300;
         Load();
         Turn({640, -5}, -120);
         Wait(8);
       },
       {"SLOTPRESS:10:10:1:1:640:-5", "SLOTPRESS:10:10:1:1:640:2147483643"}},
      // The spread is 10 units of 4 pixels, 1280 * 0.00325 = 4.16: 40 * cos 45 = 28.3 on each axis.
      {"a pinch",
       [] {
         Turn({kFar, 360}, 120, Qt::ControlModifier);
       },
       {"SLOTMULTIPRESS:0:0:-2147483648:388:10:10:-2147483620:332"}},
      // -10 - 2147483647, one below the lowest int and more
      {"the pointer less the window's edge",
       [this] {
         Add<MacroConfigItem>("Macro", "F1")->press_commands << "mouse_press:1";
         Load();
         Host().window.x = kHighest;
         Time().SetPointer({-10, 360});
         Play("down F1");
       },
       {"SLOTPRESS:1:1:1:1:-2147483648:360"}},
      // The contact moves from the button straight to the pointer.
      {"the pointer less the display's edge",
       [this] {
         auto* spell = Add<SpellConfigItem>("Spell", "F1", {0.5, 0.5});
         spell->trigger = "Spell_Trigger_On_Release_Key";
         spell->touch_location = "Spell_touch_location_mouse_dependence";
         spell->mode = "Spell_mode_curve";
         Load();
         Host().display.setCoords(kHighest - 1279, 0, kHighest, 719);
         Time().SetPointer({-kHighest, 360});
         Play("down F1");
       },
       {"SLOTPRESS:6:6:1:1:640:360", "SLOTPRESS:6:6:1:1:-2147483648:360"}},
      // Straight to the left of the character, in the middle of the display: a tenth of 1280 from the stick's centre.
      {"a walk to the pointer",
       [this] {
         auto* walk = Add<MouseRightWalkConfigItem>("RightWalk", "Mouse Right", {0.25, 0.5});
         walk->walk_radius = 0.1;
         Load();
         Mouse(QEvent::MouseButtonPress, {kFar, 360}, Qt::RightButton);
       },
       {"SLOTPRESS:4:4:1:1:320:360", "SLOTPRESS:4:4:1:1:192:360"}},
  };
  for (const auto& row : rows) {
    Host().window = {0, 0, 1280, 720};
    Host().display = Host().touch = QRect(0, 0, 1280, 720);
    Load();
    row.play();
    QStringList lines;
    for (const QString& line : TakeWire()) lines.append(line.section(QLatin1Char(':'), 1));
    EXPECT_EQ(row.lines.join('\n').toStdString(), lines.join('\n').toStdString()) << row.name;
    Play("wait 1000");
  }
}

// The macro is a fraction of the window: -2147483648 / 1280.
TEST_F(FarValues, AreCapturedAsFractions) {
  Load();
  StartRecordMacroInstruction("m");
  Mouse(QEvent::MouseMove, {kFar, 360}, Qt::NoButton);
  Turn({kFar, 360}, 120);
  StopRecordMacroInstruction("m");
  EXPECT_EQ(2, getRecordMacroInstruction("m").filter("vmouse_move:(-1.67772e+06,0.5)").size());
}

}  // namespace
}  // namespace taviinputmanager
