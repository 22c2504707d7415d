// The window's state, in the corner of the view and at the bottom.
#include "host/window/view/window_state.h"

#include <QAction>
#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>

#include "host/session/replayer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/mirror_label.h"
#include "host/window/records/record_bar.h"
#include "host/window/view/state_corner.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

constexpr int kLeftAlt = 56;
constexpr int kGrave = 41;
constexpr int kF12 = 88;

class WindowStateTest : public WindowFixture {
 protected:
  const StateCorner* Corner() const { return View()->findChild<StateCorner*>(); }
  QStringList Texts() const { return Corner()->Texts(); }
  // The texts at the bottom, without their marks.
  QString Bottom() const {
    QStringList texts;
    for (const QLabel* label : Window()->statusBar()->findChildren<QLabel*>()) {
      if (label->isVisible()) texts += label->text().remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    }
    return texts.join(" | ");
  }
};

TEST_F(WindowStateTest, WithoutAKeymap) {
  Window()->LoadKeymap(QString());
  EXPECT_EQ(Texts(), QStringList("No keymap"));
  EXPECT_TRUE(Bottom().contains("No keymap"));
}

TEST_F(WindowStateTest, WithOneItIsOnOrOff) {
  Load("");
  EXPECT_EQ(Texts(), QStringList("Mapping on"));
  EXPECT_TRUE(Bottom().contains("Mapping on"));
  Press(kF12);
  EXPECT_EQ(Texts(), QStringList("Mapping off (F12: on)"));
  EXPECT_TRUE(Bottom().contains("Mapping off (F12: on)"));
}

// The scoreboard of a game is often at the upper right.
TEST_F(WindowStateTest, KeysGiveWayToTheCorner) {
  const auto screen = [this] {
    auto* corner = View()->findChild<StateCorner*>();
    corner->hide();
    const QImage image = View()->grab().toImage();
    corner->show();
    return image;
  };
  Load("");
  const QImage empty = screen();
  Load("{type: Click, label: Board, key: Tab, point: [0.94, 0.04]}");
  const QImage with_key = screen();
  EXPECT_NE(with_key, empty);
  EXPECT_EQ(with_key.copy(Corner()->geometry()), empty.copy(Corner()->geometry()));
}

TEST_F(WindowStateTest, ABrokenChangeIsShown) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  EXPECT_EQ(Texts(), QStringList("Mapping from before the last change"));
}

TEST_F(WindowStateTest, AKeymapThatCannotBeUsedIsNotOn) {
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  EXPECT_EQ(Texts(), QStringList("Keymap cannot be used"));
  EXPECT_TRUE(Bottom().contains("Keymap cannot be used"));
  Load("");
  LoadJoystick("{type: Clack, key: Pad A, point: [0.5, 0.5]}");
  EXPECT_EQ(Texts(), QStringList("Gamepad keymap cannot be used"));
}

TEST_F(WindowStateTest, WhileOneEditsNothingIsMapped) {
  Load("");
  Window()->Editor()->Switch()->setChecked(true);
  EXPECT_EQ(Texts(), QStringList("Editing"));
  Window()->Editor()->Switch()->setChecked(false);
  EXPECT_EQ(Texts(), QStringList("Mapping on"));
}

TEST_F(WindowStateTest, WindowsOfOneKeymapHaveTitlesOfTheirOwn) {
  Load("", "name: Arena");
  EXPECT_EQ(Window()->windowTitle(), QStringLiteral("Arena \u2013 tavi"));
  EXPECT_EQ(Window()->Mirrors()->ListenAs("left"), QString());
  EXPECT_EQ(Window()->windowTitle(), QStringLiteral("Arena \u2013 left \u2013 tavi"));
  Load("", "name: Arena");
  EXPECT_EQ(Window()->windowTitle(), QStringLiteral("Arena \u2013 left \u2013 tavi"));
}

TEST_F(WindowStateTest, TheMouseThatTurnsTheView) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}, {type: Observe, key: Left Alt, point: [0.8, 0.2]}");
  Press(kGrave);
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "View control"}));
  Release(kGrave);
  Press(kGrave);
  EXPECT_EQ(Texts(), QStringList("Mapping on"));
  Release(kGrave);
  Press(kLeftAlt);
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "Looking around"}));
}

TEST_F(WindowStateTest, ATextFieldTakesTheKeys) {
  Load("");
  LiveHost::GetInstance()->SetTextField(true);
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "Text field"}));
  LiveHost::GetInstance()->SetTextField(false);
  EXPECT_EQ(Texts(), QStringList("Mapping on"));
}

TEST_F(WindowStateTest, RecordsThatAreMadeAndPlayed) {
  Load("{type: Click, key: Space, point: [0.5, 0.5]}");
  RecordBar* records = Window()->Records();
  const QString file = folder_.filePath("tap.json");
  records->SetTarget(file);
  records->ToggleRecording();
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "Recording"}));
  Press(kSpace);
  clock_->Advance(500);
  Release(kSpace);
  records->ToggleRecording();
  EXPECT_EQ(Texts(), QStringList("Mapping on"));
  ASSERT_TRUE(records->OpenRecord(file));
  records->TogglePlaying();
  clock_->Advance(100);
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "Replaying"}));
  records->TogglePlaying();
  clock_->Advance(1);
  EXPECT_EQ(Texts(), (QStringList{"Mapping on", "Replay paused"}));
}

TEST_F(WindowStateTest, TheCornerStaysInTheView) {
  Load("{type: Staring, key: Grave, point: [0.6, 0.4]}");
  LiveHost::GetInstance()->SetTextField(true);
  Window()->Records()->ToggleRecording();
  for (const QSize& size : {QSize(1280, 720), QSize(320, 1280)}) {  // the second is too narrow for one row
    Window()->Display()->SetSize(size);
    EXPECT_TRUE(View()->rect().contains(Corner()->geometry())) << size.width();
  }
}

// A finger under the corner reaches the guest.
TEST_F(WindowStateTest, TheCornerTakesNoInput) {
  Load("");
  EXPECT_EQ(View()->childAt(Corner()->geometry().center()), nullptr);
}

TEST_F(WindowStateTest, OthersThatSendOrListenAreShown) {
  EXPECT_FALSE(Bottom().contains("Listens"));
  EXPECT_EQ(Window()->Mirrors()->ListenAs("window-state-test"), QString());
  EXPECT_TRUE(Bottom().contains("Listens as window-state-test (0)")) << Bottom().toStdString();
}

}  // namespace
}  // namespace tavi
