#include "guest/guest_player.h"

#include <vector>

#include "tests/guest/played_lines.h"

namespace taviguest {
namespace {

class PlayedByAPlayer : public testing::Test {
 protected:
  void Play(const char* line, bool is_text = false) {
    if (!player_) player_.emplace(options_, MakeOutlets());
    player_->Play({is_text, line});
  }

  void PlayTimed(const char* line) {
    if (!player_) player_.emplace(options_, MakeOutlets());
    player_->PlayTimed({false, line}, [this](int ms) {
      waits_.push_back(ms);
      return is_going_on_;
    });
  }

  GuestPlayer::Outlets MakeOutlets() {
    return {[this](const KernelEvents& events) {
              count_ += events.size();
              return failure_;
            },
            [this](const std::string& problem) { problems_.push_back(problem); }};
  }

  GuestOptions options_;
  std::string failure_;
  size_t count_ = 0;  // of events
  Texts problems_;
  std::vector<int> waits_;
  bool is_going_on_ = true;  // after a wait
  std::optional<GuestPlayer> player_;
};

// A key is an event and its report.
TEST_F(PlayedByAPlayer, LinesOfAllDisplaysCountAtFirst) {
  Play("1:KBDPR:30:1");
  Play("2:KBDPR:31:1");
  EXPECT_EQ(count_, 4u);
  EXPECT_FALSE(player_->had_problem());
}

TEST_F(PlayedByAPlayer, LinesOfOneDisplayAndTextsCountWhenItIsNamed) {
  options_.display = 2;
  Play("1:KBDPR:30:1");
  EXPECT_EQ(count_, 0u);
  Play("2:KBDPR:30:1");
  EXPECT_EQ(count_, 2u);
  Play("TEXT_CONTROL:ENTER", true);
  EXPECT_EQ(count_, 6u);
}

TEST_F(PlayedByAPlayer, TellsOfEachLineThatCannotBePlayed) {
  Play("KBDPR:30:1");  // no display
  Play("1:SLOTMOVE:1");
  Play("1:KBDPR:400:1");
  Play("TEXT:\xC3\xA9", true);
  EXPECT_EQ(problems_, (Texts{"not understood: KBDPR:30:1", "not understood: 1:SLOTMOVE:1",
                              "there is no such key: 1:KBDPR:400:1", ("no key types U+00E9: TEXT:\xC3\xA9")}));
  EXPECT_TRUE(player_->had_problem());
}

TEST_F(PlayedByAPlayer, TellsWhatTheKernelDoesNotTake) {
  failure_ = "full";
  Play("1:KBDPR:30:1");
  EXPECT_EQ(problems_, Texts{"full: 1:KBDPR:30:1"});
}

TEST_F(PlayedByAPlayer, ATimelineIsPlayedInItsTime) {
  PlayTimed("0ms ! mapped 1");
  PlayTimed("16ms 1:KBDPR:30:1");
  PlayTimed("40ms text TEXT:a");
  EXPECT_EQ(waits_, (std::vector<int>{16, 40}));
  EXPECT_EQ(count_, 6u);
  PlayTimed("1:KBDRL:30:0");
  EXPECT_EQ(problems_, Texts{"not a line of a timeline: 1:KBDRL:30:0"});
}

TEST_F(PlayedByAPlayer, TheSurfaceIsTheOneThatIsSet) {
  options_.surface = {100, 50};
  KernelEvents played;
  GuestPlayer::Outlets outlets = MakeOutlets();
  outlets.events = [&played](const KernelEvents& events) {
    played = events;
    return std::string();
  };
  GuestPlayer(options_, outlets).Play({false, "1:MOUSEMOVE_REL:640:360"});
  EXPECT_EQ(TextsOf(played), (std::vector<std::string>{"pointer EV_ABS ABS_X 99", "pointer EV_ABS ABS_Y 49",
                                                       "pointer EV_SYN SYN_REPORT 0"}));
}

}  // namespace
}  // namespace taviguest
