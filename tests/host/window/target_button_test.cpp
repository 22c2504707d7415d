// The guests of a window: the input that they get, their status, and their menu.
#include "host/window/target_button.h"

#include <map>
#include <string>

#include <QAction>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenu>
#include <QStatusBar>

#include "host/target/guest_targets.h"
#include "host/window/main_tool_bar.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

// A guest that reads its lines when the host has left. It waits in real time, which the window's clock does not know.
class PatientGuest {
 public:
  explicit PatientGuest(const QString& path) { EXPECT_TRUE(server_.listen(path)); }

  void TakeConnection() {
    EXPECT_TRUE(server_.waitForNewConnection(kLimitMs));
    socket_ = server_.nextPendingConnection();
    ASSERT_NE(socket_, nullptr);
  }
  QByteArray Lines() {
    while (socket_->waitForReadyRead(kLimitMs)) {
    }
    return socket_->readAll();
  }

 private:
  static constexpr int kLimitMs = 30000;

  QLocalServer server_;
  QLocalSocket* socket_ = nullptr;  // owned by the server
};

class TargetButtonTest : public WindowFixture {
 protected:
  ~TargetButtonTest() override { LiveHost::GetInstance()->Targets()->Close(); }

  void AddGuest(const char* name) {
    const QString path = folder_.filePath(name);
    PatientGuest& guest = guests_.try_emplace(name, path).first->second;
    Window()->Targets()->Add(ParseTarget("unix:" + path, false).address);
    guest.TakeConnection();
    clock_->Settle();
    clock_->Advance(1);
  }
  QByteArray LinesOf(const char* name) {
    LiveHost::GetInstance()->Targets()->Close();
    return guests_.at(name).Lines();
  }
  QAction* Entry(const QString& text) {
    QMenu* menu = Window()->Targets()->menu();
    menu->aboutToShow();
    for (QAction* action : menu->actions()) {
      if (action->text() == text) return action;
    }
    ADD_FAILURE() << text.toStdString();
    return nullptr;
  }

 private:
  std::map<std::string, PatientGuest> guests_;
};

constexpr char kTap[] = "{type: Click, key: Space, point: [0.5, 0.5]}";
constexpr char kTapDown[] = "1:SLOTPRESS:11:11:1:1:640:360\n";

TEST_F(TargetButtonTest, AGuestGetsWhatTheWindowPlays) {
  Load(kTap);
  EXPECT_TRUE(Window()->Targets()->isHidden());
  AddGuest("lines");
  EXPECT_EQ(Window()->Targets()->text(), QString("Guest: connected, 0 lines/s"));
  EXPECT_FALSE(Window()->Targets()->isHidden());
  EXPECT_EQ(Window()->Targets()->focusPolicy(), Qt::TabFocus);
  Press(kSpace);
  Release(kSpace);
  EXPECT_EQ(LinesOf("lines"), QByteArray(kTapDown) + "1:SLOTRELEASE:11\n");
}

TEST_F(TargetButtonTest, WhoCountsItsLinesSeesThemEachSecond) {
  Load(kTap);
  AddGuest("first");
  AddGuest("second");
  EXPECT_EQ(Window()->Targets()->text(), QString("Guests: 2 of 2 connected"));
  Entry("Send lines")->trigger();  // the first one
  EXPECT_EQ(Window()->Targets()->text(), QString("Guests: 1 of 2 connected"));
}

TEST_F(TargetButtonTest, LettingGoLiftsGamepadsToo) {
  AddGuest("lines");
  taviinputmanager::OnInputRawEventData("LSTICKAXIS:0:-1000000\n", LiveHost::kDisplay);
  Window()->Tools()->LetGo()->trigger();
  clock_->Settle();
  taviinputmanager::OnInputRawEventData("KBDPR:30:1\n", LiveHost::kDisplay);
  const QList<QByteArray> lines = LinesOf("lines").split('\n');
  const int lifted = lines.indexOf("1:LSTICKAXIS:0:0");
  EXPECT_GT(lifted, lines.indexOf("1:LSTICKAXIS:0:-1000000"));
  EXPECT_LT(lifted, lines.indexOf("1:KBDPR:30:1"));
  EXPECT_EQ(lines.last(), "");
  EXPECT_EQ(lines[lines.size() - 2], "1:KBDRL:30:0");
}

TEST_F(TargetButtonTest, LosingTheKeysLiftsWhatIsDown) {
  Load(kTap);
  AddGuest("lines");
  Press(kSpace);
  View()->clearFocus();
  taviinputmanager::OnInputRawEventData("KBDPR:30:1\n", LiveHost::kDisplay);
  const QByteArray lines = LinesOf("lines");
  EXPECT_TRUE(lines.startsWith(kTapDown));
  EXPECT_LT(lines.indexOf("1:SLOTRELEASE:11\n"), lines.indexOf("1:KBDPR:30:1\n"));
  EXPECT_GT(lines.indexOf("1:SLOTRELEASE:11\n"), 0);
}

TEST_F(TargetButtonTest, TheMenuSwitchesAGuestOffAndOn) {
  Load(kTap);
  AddGuest("lines");
  Press(kSpace);
  EXPECT_TRUE(Entry("Send lines")->isChecked());
  Entry("Send lines")->trigger();
  EXPECT_EQ(Window()->Targets()->text(), QString("Guest: off"));
  EXPECT_FALSE(Entry("Send lines")->isChecked());
  EXPECT_FALSE(Entry("Try again")->isEnabled());
  EXPECT_FALSE(Entry("off")->isEnabled());
  Release(kSpace);
  Press(kSpace);
  EXPECT_EQ(LinesOf("lines"), QByteArray(kTapDown) + "1:SLOTRELEASE:11\n");
}

TEST_F(TargetButtonTest, AGuestThatIsNotThereIsTold) {
  Window()->Targets()->Add(ParseTarget("unix:" + folder_.filePath("none"), false).address);
  clock_->Settle();
  clock_->Advance(1);
  EXPECT_EQ(Window()->Targets()->text(), QString("Guest: there is no such socket; next try in 1 s"));
  EXPECT_EQ(Window()->statusBar()->currentMessage(),
            "No lines go to unix:" + folder_.filePath("none") + ": there is no such socket");
  EXPECT_TRUE(Entry("Try again")->isEnabled());
}

}  // namespace
}  // namespace tavi
