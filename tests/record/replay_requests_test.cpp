// Which replays a request reaches, and how replays stop.
#include <QFile>

#include "record/replay_manager.h"
#include "record/replay_worker.h"
#include "tests/record/replay_story.h"

namespace taviinputmanager {
namespace {

class ReplayRequests : public ReplayStory {};

// ---- Names ----

TEST_F(ReplayRequests, AnotherTaskOrFileIsNotMeant) {
  Save("a.json", {KeyDown(100, 30), KeyUp(1000, 30)});
  Save("b.json", {KeyDown(100, 17), KeyUp(1000, 17)});
  Start(7, "a.json");
  TakeStory();
  for (const auto& other :
       {std::make_pair(8, "a.json"), std::make_pair(7, "b.json"), std::make_pair(7, "A.json"), std::make_pair(7, "")}) {
    Pause(other.first, other.second);
    Resume(other.first, other.second);
    Restart(other.first, other.second);
    Stop(other.first, other.second, true);
  }
  EXPECT_STORY_NONE();
  Wait(100);
  EXPECT_STORY("100ms 2:KBDPR:30:1");
}

TEST_F(ReplayRequests, WithoutReplayNothingHappens) {
  Save("a.json", {KeyDown(100, 30)});
  Pause(7, "a.json");
  Resume(7, "a.json");
  Restart(7, "a.json");
  Stop(7, "a.json", true);
  StopAll();
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, ReplaysSideBySideAreAskedOneByOne) {
  Save("a.json", {KeyDown(100, 30), KeyUp(100, 30), KeyDown(1000, 30)});
  Save("b.json", {KeyDown(100, 17), KeyUp(100, 17), KeyDown(1000, 17)});
  Start(7, "a.json");
  Start(8, "b.json");
  Wait(150);
  EXPECT_STORY("0ms > started 7 a.json", "0ms > started 8 b.json", "100ms 2:KBDPR:30:1", "100ms 2:KBDPR:17:1");
  Stop(7, "a.json");
  Wait(100);
  EXPECT_STORY("150ms > stopped 7 a.json", "200ms 2:KBDRL:17:0");
}

TEST_F(ReplayRequests, APauseResetsTheLiveDisplayOfTheMoment) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  UpdateDisplayId(3);
  TakeStory();
  Pause(7, "a.json");
  const QStringList lines = TakeLines();
  ASSERT_FALSE(lines.isEmpty());
  for (const QString& line : lines) EXPECT_TRUE(line.contains("ms 3:SLOTRELEASE:")) << line.toStdString();
}

TEST_F(ReplayRequests, TwoReplaysOfOneNameReactTogether) {
  Save("a.json", {KeyDown(100, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(50);
  Start(7, "a.json");
  Wait(50);
  EXPECT_STORY("0ms > started 7 a.json", "50ms > started 7 a.json", "100ms 2:KBDPR:30:1");
  Pause(7, "a.json");
  EXPECT_REPLAY_CALLS("100ms > paused 7 a.json", "100ms > paused 7 a.json");
  Stop(7, "a.json");
  EXPECT_STORY("100ms > stopped 7 a.json", "100ms > stopped 7 a.json");
  Wait(5000);
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, TwoReplaysShareTheSlotsOfTheirFiles) {
  Save("a.json", {TouchDown(100, 5, "(0.25,0.5)"), KeyUp(1000, 30)});
  Save("b.json", {TouchDown(200, 5, "(0.75,0.5)"), TouchDown(10, 6, "(0.5,0.5)"), KeyUp(1000, 30)});
  Start(7, "a.json");
  Start(8, "b.json");
  TakeStory();
  Wait(500);
  EXPECT_STORY("100ms 2:SLOTPRESS:18:18:1:1:320:360", "200ms 2:SLOTPRESS:18:18:1:1:960:360",
               "210ms 2:SLOTPRESS:19:19:1:1:640:360");
}

// All share one handler.
TEST_F(ReplayRequests, ANewReplayMakesTheOthersForget) {
  Save("a.json", {TouchDown(100, 5, "(0.25,0.5)"), TouchUp(100, 5), KeyUp(1000, 30)});
  Save("b.json", {KeyDown(1000, 17)});
  Start(7, "a.json");
  Wait(150);
  Start(8, "b.json");
  TakeStory();
  Resume(8, "b.json");  // nothing is held any more
  EXPECT_STORY("150ms > resumed 8 b.json");
  Wait(50);
  EXPECT_STORY("200ms 2:SLOTRELEASE:19");  // slot 18 stays taken, and its contact down
}

// What is held is pressed again, whichever replay is named.
TEST_F(ReplayRequests, AResumeOfNobodyPressesWhatIsHeld) {
  Save("a.json", {TouchDown(100, 5, "(0.25,0.5)"), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(150);
  TakeStory();
  Resume(99, "none.json");
  EXPECT_STORY("150ms 2:SLOTPRESS:18:18:1:1:320:360");
  Restart(99, "none.json");
  Resume(99, "none.json");
  EXPECT_STORY_NONE();
}

// ---- Stops ----

TEST_F(ReplayRequests, AStopByTheUserReleasesWhatIsDown) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyDown(10, 30), KeyDown(10, 17), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(50);
  TakeStory();
  Stop(7, "a.json", true);
  EXPECT_STORY("50ms > stopped 7 a.json", "50ms 2:SLOTRELEASEALL", "50ms 2:KBDRL:17:0", "50ms 2:KBDRL:30:0");
  Wait(5000);
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, AnyOtherStopLeavesItDown) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyDown(10, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(50);
  TakeStory();
  Stop(7, "a.json", false);
  EXPECT_STORY("50ms > stopped 7 a.json");
  Wait(5000);
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, AStopReleasesOnTheReplayDisplayOfTheMoment) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(50);
  UpdateReplayDisplayId(4);
  TakeStory();
  Stop(7, "a.json", true);
  EXPECT_STORY("50ms > stopped 7 a.json", "50ms 4:SLOTRELEASEALL", "50ms 4:KBDRL:30:0");
}

TEST_F(ReplayRequests, AForcedStopReachesAll) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  Save("b.json", {KeyDown(10, 17)});
  Start(7, "a.json");
  Start(8, "b.json");
  Start(9, "a.json");
  Wait(50);
  Pause(9, "a.json");
  TakeStory();
  StopAll();  // one plays, one has ended, one is paused
  EXPECT_STORY("50ms > stopped 7 a.json", "50ms > stopped 8 b.json", "50ms > stopped 9 a.json");
  Wait(5000);
  StopAll();
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, PausedAndEndedReplaysMayBeStopped) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  Save("b.json", {KeyDown(10, 17)});
  Start(7, "a.json");
  Start(8, "b.json");
  Wait(50);
  Pause(7, "a.json");
  TakeStory();
  Stop(7, "a.json");
  Stop(8, "b.json");
  EXPECT_STORY("50ms > stopped 7 a.json", "50ms > stopped 8 b.json");
}

TEST_F(ReplayRequests, AStoppedReplayIsGone) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  Start(7, "a.json");
  Stop(7, "a.json");
  TakeStory();
  Pause(7, "a.json");
  Resume(7, "a.json");
  Restart(7, "a.json");
  Stop(7, "a.json", true);
  Wait(5000);
  EXPECT_STORY_NONE();
}

TEST_F(ReplayRequests, AnActionThatFellDueBeforeAStopIsStillPerformed) {
  Save("a.json", {Step(10, "vcontrol", "stop"), KeyDown(0, 30), KeyUp(10, 30)});
  table_.vcontrol = [](const QString&, const QString&, const QString&, int id, const QString& file) {
    StopReplay(id, file, false);
  };
  Start(7, "a.json");
  Wait(5000);
  EXPECT_REPLAY_CALLS("0ms > started 7 a.json", "10ms > stopped 7 a.json");
}

// ---- Requests that come too early for the worker itself ----

class ReplayWorkerAlone : public ReplayRequests {
 protected:
  ReplayWorkerAlone() {
    QObject::connect(&worker_, &ReplayWorker::ReplayStopped, [this] { ++stops_; });
    QObject::connect(&worker_, &ReplayWorker::ReplayPaused, [this] { ++pauses_; });
  }

  ReplayWorker worker_{ReplayContext(), {7, 0, Path("a.json"), {}, &table_}};
  int stops_ = 0;
  int pauses_ = 0;
};

TEST_F(ReplayWorkerAlone, LosesWhatComesBeforeItsStart) {
  worker_.Pause(7, Path("a.json"));
  worker_.Resume(7, Path("a.json"));
  worker_.Stop(7, Path("a.json"), true);
  worker_.ForceStop();
  worker_.TimerOutTime();
  EXPECT_STORY_NONE();
  EXPECT_EQ(0, stops_);
  EXPECT_EQ(0, pauses_);
}

TEST_F(ReplayWorkerAlone, LosesAPauseBeforeItsStartThoughAnActionIsAtHand) {
  ReplayContext context;
  context.current_action.type = "keyboard";
  context.next_delay = 100;
  ReplayWorker worker(context, {7, 0, Path("a.json"), {}, &table_});
  QObject::connect(&worker, &ReplayWorker::ReplayPaused, [this] { ++pauses_; });
  worker.Pause(7, Path("a.json"));
  EXPECT_STORY_NONE();
  EXPECT_EQ(0, pauses_);
}

TEST_F(ReplayWorkerAlone, MayBeRestartedBeforeItsStart) {
  worker_.Restart(8, Path("a.json"));
  worker_.Restart(7, Path("b.json"));
  EXPECT_STORY_NONE();
  worker_.Restart(7, Path("a.json"));  // it has no actions at all
  EXPECT_REPLAY_CALLS("0ms > finished 7 a.json 1 0", "0ms > started 7 a.json");
  worker_.ForceStop();
  EXPECT_EQ(1, stops_);
}

// ---- Files that cannot be played, and tables ----

TEST_F(ReplayRequests, AFileThatCannotBeLoadedStartsNothing) {
  ReplayFolder folder;
  const QJsonObject info{{"package_name", "x"}};
  const QJsonArray steps{KeyDown(0, 30)};
  const QStringList files{
      folder.Path("missing.json"),
      folder.SaveText("empty.json", ""),
      folder.SaveText("broken.json", R"({"info":{"a":1},"actions":[)"),
      folder.SaveText("array.json", "[]"),
      folder.SaveJson("no_info.json", {{"actions", steps}}),
      folder.SaveJson("empty_info.json", {{"info", QJsonObject()}, {"actions", steps}}),
      folder.SaveJson("other_info.json", {{"info", 1}, {"actions", steps}}),
      folder.SaveJson("no_list.json", {{"info", info}}),
      folder.SaveJson("empty_merged.json", {{"info", info}, {"merged_actions", QJsonArray()}}),
      folder.SaveJson("bad_item.json", {{"info", info}, {"merged_actions", QJsonArray{QJsonObject()}}}),
      folder.Path(""),
      QString(),
  };
  for (const QString& file : files) {
    StartReplay(0, 7, QString(), file, {});
    Wait(100);
    StopReplay(7, file, true);
    Wait(100);
    EXPECT_STORY_NONE() << file.toStdString();
  }
}

TEST_F(ReplayRequests, AFailedStartLeavesRunningReplaysAlone) {
  Save("a.json", {TouchDown(10, 0, "(0.5,0.5)"), KeyUp(1000, 30)});
  Start(7, "a.json");
  Wait(50);
  TakeStory();
  Start(8, "missing.json");
  Resume(8, "missing.json");  // what the first one holds is still recorded
  EXPECT_STORY("50ms 2:SLOTPRESS:18:18:1:1:640:360");
}

TEST_F(ReplayRequests, TheFirstNumberAndTheFirstTextMeanNothing) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  StartReplay(-5, 7, Path("b.json"), Path("a.json"), {});
  Wait(50);
  EXPECT_STORY("0ms > started 7 a.json", "10ms 2:KBDPR:30:1");
}

TEST_F(ReplayRequests, TheManagerTakesWhatTheHostGives) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  ReplayManager* manager = ReplayManager::GetInstance();
  manager->StartReplay(-5, 7, Path("b.json"), Path("a.json"), {2.0, false});
  Wait(8);
  EXPECT_STORY("0ms > started 7 a.json", "5ms 2:KBDPR:30:1");
  manager->RestartReplay(7, Path("a.json"), {1.0, false});  // at the speed of the start all the same
  Wait(8);
  EXPECT_STORY("8ms > started 7 a.json", "13ms 2:KBDPR:30:1");
}

TEST_F(ReplayRequests, NoTableIsAllowed) {
  InitializeReplayCallbacks(nullptr);
  Save("a.json", {Step(10, "vcontrol", "data"), KeyDown(10, 30)});
  Start(7, "a.json");
  Wait(15);
  Pause(7, "a.json");
  Resume(7, "a.json");
  Restart(7, "a.json");
  Wait(100);
  Stop(7, "a.json");
  EXPECT_EQ(1, TakeLines().filter("KBDPR:30:1").size());
}

// The worker has the table of its start, the manager the current one.
TEST_F(ReplayRequests, AReplayKeepsItsTable) {
  Save("a.json", {Step(10, "vcontrol", "data"), KeyUp(1000, 30)});
  Start(7, "a.json");
  InitializeReplayCallbacks(nullptr);
  Wait(50);
  Pause(7, "a.json");
  EXPECT_REPLAY_CALLS("0ms > started 7 a.json", "50ms > paused 7 a.json");
}

}  // namespace
}  // namespace taviinputmanager
