#include "host/uinput/guest_player.h"

#include <QStringList>

#include "tests/host/uinput/played_lines.h"

namespace tavi {
namespace {

class PlayedByAPlayer : public testing::Test {
 protected:
  void Play(const char* line, bool is_text = false) {
    if (!player_) player_.emplace(settings_, MakeOutlets());
    player_->Play({is_text, QString::fromUtf8(line)});
  }

  GuestPlayer::Outlets MakeOutlets() {
    return {[this](const KernelEvents& events) {
              count_ += events.size();
              return failure_;
            },
            [this](const QString& problem) { problems_ += problem; }, [this](int ms) { waits_ += ms; }};
  }

  GuestPlayerSettings settings_;
  QString failure_;
  int count_ = 0;  // of events
  QStringList problems_;
  QList<int> waits_;
  std::optional<GuestPlayer> player_;
};

// A key is an event and its report.
TEST_F(PlayedByAPlayer, LinesOfAllDisplaysCountAtFirst) {
  Play("1:KBDPR:30:1");
  Play("2:KBDPR:31:1");
  EXPECT_EQ(count_, 4);
  EXPECT_FALSE(player_->had_problem());
}

TEST_F(PlayedByAPlayer, LinesOfOneDisplayAndTextsCountWhenItIsNamed) {
  settings_.display = 2;
  Play("1:KBDPR:30:1");
  EXPECT_EQ(count_, 0);
  Play("2:KBDPR:30:1");
  EXPECT_EQ(count_, 2);
  Play("TEXT_CONTROL:ENTER", true);
  EXPECT_EQ(count_, 6);
}

TEST_F(PlayedByAPlayer, TellsOfEachLineThatCannotBePlayed) {
  Play("KBDPR:30:1");  // no display
  Play("1:SLOTMOVE:1");
  Play("1:KBDPR:400:1");
  Play("TEXT:\xC3\xA9", true);
  EXPECT_EQ(problems_, (QStringList{"not understood: KBDPR:30:1", "not understood: 1:SLOTMOVE:1",
                                    "there is no such key: 1:KBDPR:400:1",
                                    QString::fromUtf8("no key types U+00E9: TEXT:\xC3\xA9")}));
  EXPECT_TRUE(player_->had_problem());
}

TEST_F(PlayedByAPlayer, TellsWhatTheKernelDoesNotTake) {
  failure_ = "full";
  Play("1:KBDPR:30:1");
  EXPECT_EQ(problems_, QStringList{"full: 1:KBDPR:30:1"});
}

TEST_F(PlayedByAPlayer, ATimelineIsPlayedInItsTime) {
  settings_.is_timeline = true;
  Play("0ms ! mapped 1");
  Play("16ms 1:KBDPR:30:1");
  Play("40ms text TEXT:a");
  EXPECT_EQ(waits_, (QList<int>{16, 40}));
  EXPECT_EQ(count_, 6);
  Play("1:KBDRL:30:0");
  EXPECT_EQ(problems_, QStringList{"not a line of a timeline: 1:KBDRL:30:0"});
}

TEST_F(PlayedByAPlayer, TheSurfaceIsTheOneThatIsSet) {
  settings_.surface = QSize(100, 50);
  KernelEvents played;
  GuestPlayer::Outlets outlets = MakeOutlets();
  outlets.events = [&played](const KernelEvents& events) {
    played = events;
    return QString();
  };
  GuestPlayer(settings_, outlets).Play({false, QStringLiteral("1:MOUSEMOVE_REL:640:360")});
  EXPECT_EQ(TextsOf(played), (std::vector<std::string>{"pointer EV_ABS ABS_X 99", "pointer EV_ABS ABS_Y 49",
                                                       "pointer EV_SYN SYN_REPORT 0"}));
}

}  // namespace
}  // namespace tavi
