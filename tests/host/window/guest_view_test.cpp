#include "host/window/view/guest_view.h"

#include <functional>
#include <gtest/gtest.h>

#include <QCursor>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QWheelEvent>

#include "qt/touch_events.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/keyboard_105.h"

namespace tavi {
namespace {

class GuestViewTest : public WindowFixture {};

TEST_F(GuestViewTest, KeepsTheShapeOfTheGuest) {
  const double shape = static_cast<double>(View()->width()) / View()->height();
  EXPECT_NEAR(shape, 1280.0 / 720, 0.01);
}

TEST_F(GuestViewTest, AKeyTapsAtThePointOfItsItem) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Press(kSpace);
  EXPECT_EQ(Slots(), QList<int>{11});  // the first slot for taps
  ExpectNear(Finger(), 320, 540);      // 0.25 * 1280, 0.75 * 720
  Release(kSpace);
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestViewTest, AnotherSizeOfTheGuestMovesThePoint) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Window()->Display()->SetSize(QSize(720, 1280));
  Press(kSpace);
  ExpectNear(Finger(), 180, 960);  // 0.25 * 720, 0.75 * 1280
}

TEST_F(GuestViewTest, AMacroFindsThePointerWhereverTheViewIs) {
  Load("{type: Macro, key: Space, press_commands: ['press_rel:mouse']}");
  const QPoint pointer = View()->mapToGlobal(At(0.25, 0.75).toPoint());
  QCursor::setPos(pointer);
  clock_->SetPointer(pointer);
  Press(kSpace);
  ExpectNear(Finger(), 320, 540);  // 0.25 * 1280, 0.75 * 720
}

TEST_F(GuestViewTest, AGuestAsLargeAsTheViewGetsItsPixels) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  Window()->Display()->SetSize(QSize());
  Press(kSpace);
  ExpectNear(Finger(), View()->width() / 2, View()->height() / 2);
}

TEST_F(GuestViewTest, KeysThatMoveTheFocusAreTheGuestsToo) {
  Load("{type: Click, key: Tab, point: [0.5, 0.5]}");
  Press(15);
  EXPECT_EQ(Slots().size(), 1);
}

// For example the release of the Escape that closed a dialog.
TEST_F(GuestViewTest, AReleaseWithoutItsPressIsNotTheGuests) {
  Load("", "settings: {keyboard_transparent: true}");
  int lines = 0;
  QObject counter;  // ends before the window releases everything
  QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &counter, [&] { ++lines; });
  Release(1);
  EXPECT_EQ(lines, 0);
  Press(1);
  Release(1);
  EXPECT_EQ(lines, 2);
  Release(1);
  EXPECT_EQ(lines, 2);
}

TEST_F(GuestViewTest, NoKeyIsAShortcutOfTheWindow) {
  QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F, Qt::AltModifier);
  event.ignore();
  Send(&event);
  EXPECT_TRUE(event.isAccepted());
}

TEST_F(GuestViewTest, WhatIsHeldIsLetGoWithTheFocus) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}", "settings: {keyboard_transparent: true}");
  Press(kSpace);
  Press(kW);
  Mouse(QEvent::MouseButtonPress, At(0.1, 0.1), Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Slots().size(), 2);
  EXPECT_EQ(Guest().held_keys, QSet<int>{kW});

  QFocusEvent out(QEvent::FocusOut);
  Send(&out);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

// Each key passes all steps: the host's code, the library's conversion, the guest's code.
TEST_F(GuestViewTest, EveryKeyPassesThroughAsTheGuestsOwn) {
  taviinputmanager::UpdateDisplayForceTransparent(LiveHost::kDisplay, true);
  Load("");
  KeyCombination pause;
  ASSERT_EQ(ParseKeyCombination("Meta+F12", &pause), QString());
  Window()->SetPauseKey(pause);  // otherwise the window reserves F12
  for (const KeyboardKey& key : kKeyboard105) {
    Press(key.linux_code);
    EXPECT_EQ(Guest().held_keys, QSet<int>{key.guest_code}) << key.name;
    Release(key.linux_code);
    EXPECT_TRUE(Guest().held_keys.isEmpty()) << key.name;
  }
}

// A key is set, and can be the first of a chord, only with a virtual key.
TEST_F(GuestViewTest, ChordsAnswer) {
  Load("{type: Click, key: Left Alt + A, point: [0.5, 0.5]}");
  Press(kA);
  Release(kA);
  EXPECT_TRUE(Slots().isEmpty());
  Press(56);
  Press(kA);
  EXPECT_EQ(Slots().size(), 1);
}

TEST_F(GuestViewTest, AKeyWithoutAPlaceOnTheKeyboardIsNone) {
  taviinputmanager::UpdateDisplayForceTransparent(LiveHost::kDisplay, true);
  Load("");
  Key(QEvent::KeyPress, -8, "x");
  EXPECT_TRUE(Guest().held_keys.isEmpty());
}

TEST_F(GuestViewTest, InputMethodsWriteIntoATextFieldOnly) {
  EXPECT_FALSE(View()->testAttribute(Qt::WA_InputMethodEnabled));
  LiveHost::GetInstance()->SetTextField(true);
  EXPECT_TRUE(View()->testAttribute(Qt::WA_InputMethodEnabled));
  QInputMethodEvent event;
  event.setCommitString(QStringLiteral("\u4F60\u597D"));
  Send(&event);
  EXPECT_EQ(Guest().text, QStringLiteral("\u4F60\u597D"));
}

TEST_F(GuestViewTest, TheLeftButtonIsAFinger) {
  Load("");
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Slots(), QList<int>{1});
  ExpectNear(Finger(), 640, 360);
  Mouse(QEvent::MouseMove, At(0.25, 0.5), Qt::NoButton, Qt::LeftButton);
  ExpectNear(Finger(), 320, 360);
  Mouse(QEvent::MouseButtonRelease, At(0.25, 0.5), Qt::LeftButton, Qt::NoButton);
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestViewTest, AFingerStaysOnTheGlass) {
  Load("");
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  Mouse(QEvent::MouseMove, {-400, 9000}, Qt::NoButton, Qt::LeftButton);
  EXPECT_EQ(Finger().x(), 0);
  EXPECT_LT(Finger().y(), 720);
  EXPECT_NEAR(Finger().y(), 719, 2);
}

TEST_F(GuestViewTest, ADoubleClickTapsTwice) {
  Load("");
  Mouse(QEvent::MouseButtonPress, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, At(0.5, 0.5), Qt::LeftButton, Qt::NoButton);
  Mouse(QEvent::MouseButtonDblClick, At(0.5, 0.5), Qt::LeftButton, Qt::LeftButton);
  EXPECT_EQ(Slots(), QList<int>{1});
}

TEST_F(GuestViewTest, TheWheelTurnsWhereThePointerIs) {
  Load("", "settings: {wheel_transparent: true}");
  QWheelEvent event(At(0.5, 0.25), At(0.5, 0.25), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  Send(&event);
  ExpectNear(Guest().wheel.point, 640, 180);
  EXPECT_EQ(Guest().wheel.amount, -100);
}

TEST_F(GuestViewTest, TouchesAreFingers) {
  Load("");
  const qt::TouchPoint down = qt::MakeTouchPoint(1, Qt::TouchPointPressed, At(0.5, 0.5));
  QTouchEvent begin = qt::MakeTouchEvent(QEvent::TouchBegin, Qt::NoModifier, {down});
  begin.ignore();
  Send(&begin);
  EXPECT_TRUE(begin.isAccepted());
  ExpectNear(Finger(), 640, 360);

  const qt::TouchPoint up = qt::MakeTouchPoint(1, Qt::TouchPointReleased, At(0.5, 0.5));
  QTouchEvent end = qt::MakeTouchEvent(QEvent::TouchEnd, Qt::NoModifier, {up});
  Send(&end);
  EXPECT_TRUE(Slots().isEmpty());
}

class GuestViewTouch : public GuestViewTest {
 protected:
  qt::TouchPoint Finger(int id, double x, double y, Qt::TouchPointState state) const {
    return qt::MakeTouchPoint(id, state, At(x, y));
  }
  void Touch(QEvent::Type type, const QList<qt::TouchPoint>& fingers) {
    QTouchEvent event = qt::MakeTouchEvent(type, Qt::NoModifier, fingers);
    Send(&event);
  }
  void PutTwoDown() {
    Load("");
    Touch(QEvent::TouchBegin,
          {Finger(1, 0.25, 0.5, Qt::TouchPointPressed), Finger(2, 0.75, 0.5, Qt::TouchPointPressed)});
    ASSERT_EQ(Slots(), (QList<int>{18, 19}));
  }
};

// Qt reports it once, as a released finger, and not again while the other one rests.
TEST_F(GuestViewTouch, AFingerThatGoesUpIsUpAtOnce) {
  PutTwoDown();
  Touch(QEvent::TouchUpdate,
        {Finger(1, 0.25, 0.5, Qt::TouchPointStationary), Finger(2, 0.75, 0.5, Qt::TouchPointReleased)});
  EXPECT_EQ(Slots(), QList<int>{18});
  Touch(QEvent::TouchUpdate, {Finger(1, 0.5, 0.5, Qt::TouchPointMoved), Finger(3, 0.75, 0.5, Qt::TouchPointPressed)});
  EXPECT_EQ(Slots(), (QList<int>{18, 19}));
  ExpectNear(Guest().contacts[18].point, 640, 360);
}

TEST_F(GuestViewTouch, ATouchThatTheSystemTakesIsLiftedAlone) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  Press(kSpace);
  Touch(QEvent::TouchBegin, {Finger(1, 0.25, 0.5, Qt::TouchPointPressed)});
  ASSERT_EQ(Slots(), (QList<int>{11, 18}));
  Touch(QEvent::TouchCancel, {});
  EXPECT_EQ(Slots(), QList<int>{11});
}

TEST_F(GuestViewTouch, FingersAreLiftedWithAllElse) {
  const struct {
    const char* name;
    std::function<void()> let_go;
  } rows[] = {
      {"the focus goes",
       [this] {
         QFocusEvent out(QEvent::FocusOut);
         Send(&out);
       }},
      {"the way out", [this] { Window()->Keymaps()->LetGoOfEverything(); }},
      {"another keymap", [this] { Load("{type: Click, key: Space, point: [0.5, 0.5]}"); }},
      {"the mapping is switched", [this] { Window()->PauseMapping(); }},
  };
  for (const auto& row : rows) {
    PutTwoDown();
    row.let_go();
    EXPECT_TRUE(Slots().isEmpty()) << row.name;
    // They are still on the screen, and are ignored until the next touch.
    Touch(QEvent::TouchUpdate,
          {Finger(1, 0.3, 0.5, Qt::TouchPointMoved), Finger(2, 0.75, 0.5, Qt::TouchPointStationary)});
    EXPECT_TRUE(Slots().isEmpty()) << row.name;
    Touch(QEvent::TouchEnd, {Finger(1, 0.3, 0.5, Qt::TouchPointReleased)});
  }
}

TEST_F(GuestViewTest, ABrokenKeymapIsToldAndTakesNoKeys) {
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  Press(kSpace);
  EXPECT_TRUE(Slots().isEmpty());
  EXPECT_EQ(View()->window()->windowTitle(), QStringLiteral("keymap.yaml \u2013 tavi"));
}

// Everything that can be drawn at once. People check the picture; the test only checks that it is drawn. The ring has a
// radius of at least 15 pixels, and the key's plate is in its middle.
TEST_F(GuestViewTest, AFingerLeavesTheKeyBelowItReadable) {
  Load("{type: Click, label: Jump, key: Space, point: [0.5, 0.5]}");
  const QRect key(View()->width() / 2 - 14, View()->height() / 2 - 6, 28, 12);
  const QImage before = View()->grab(key).toImage();
  Press(kSpace);
  const QImage after = View()->grab(key).toImage();
  int changed = 0;
  for (int y = 0; y < before.height(); ++y) {
    for (int x = 0; x < before.width(); ++x) {
      const QColor one = before.pixelColor(x, y);
      const QColor other = after.pixelColor(x, y);
      // The plate has an opacity of seven eighths.
      if (qAbs(one.green() - other.green()) > 40) ++changed;
    }
  }
  EXPECT_EQ(changed, 0);
}

TEST_F(GuestViewTest, DrawsAllThatAGuestCanHave) {
  Load(
      "{type: Swipehold, label: Walk, point: [0.2, 0.7], key_up: W, key_left: A, key_down: S, key_right: D},"
      "{type: Click, key: Space, point: [0.5, 0.5]}, {type: Tip, label: Note, point: [0.5, 0.1]},"
      "{type: Staring, key: Grave, point: [0.6, 0.4], range_mode: Range_User, range_size: [0.3, 0.3]},"
      "{type: Curve, key: E, point: [0.7, 0.7], curve_straight: true, curve_end: [0, -0.1]},"
      "{type: Macro, label: Run, key: Left Shift, press_commands: ['sleep:1']}");
  LiveHost::GetInstance()->SetTextField(true);
  for (const char* line :
       {"SLOTPRESS:11:11:1:1:640:360", "SLOTPRESS:11:11:1:1:700:400", "SLOTPRESS:2:2:1:1:250:500", "SLOTRELEASE:2",
        "SLOTMULTIPRESS:18:18:900:100:19:19:1000:200", "KBDPR:30:1", "KBDPR:272:1", "MOUSEMOVE_REL:400:300",
        "WHEEL:400:300:100:0", "LSTICKAXIS:700000:-700000", "RTRIGGERAXIS:1", "GPDBUTTON:304:1", "HATX:1"}) {
    taviinputmanager::OnInputRawEventData(QLatin1String(line) + "\n", LiveHost::kDisplay);
  }
  taviinputmanager::OnInputRawTextData(QStringLiteral("TEXT:hello\n"));
  Q_EMIT LiveHost::GetInstance()->GravityChanged(-20, 0, 30);
  clock_->Advance(100);
  const QImage picture = View()->window()->grab().toImage();
  EXPECT_EQ(picture.size(), View()->window()->size() * View()->devicePixelRatioF());
  const QString wanted = qEnvironmentVariable("TAVI_TEST_PICTURE");
  if (!wanted.isEmpty()) picture.save(wanted);
  clock_->Advance(2000);  // trails fade, and the view stops repainting
}

}  // namespace
}  // namespace tavi
