// Which files replays lock. The locks are advisory.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QFileInfo>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/replay_story.h"

namespace taviinputmanager {
namespace {

class ReplayHolds : public ReplayStory {
 protected:
  // How many open files of this process are this one.
  int Handles(const QString& name) const {
    const QString path = QFileInfo(Path(name)).canonicalFilePath();
    int count = 0;
    for (const QFileInfo& file : QDir("/proc/self/fd").entryInfoList(QDir::Files | QDir::System | QDir::Hidden)) {
      count += file.symLinkTarget() == path;
    }
    return count;
  }
  // Whether a program that uses locks may write.
  bool MayWrite(const QString& name) const {
    const int file = open(Path(name).toLocal8Bit().constData(), O_RDWR | O_CLOEXEC);
    EXPECT_GE(file, 0);
    const bool may = flock(file, LOCK_EX | LOCK_NB) == 0;
    close(file);
    return may;
  }
};

TEST_F(ReplayHolds, AFileIsHeldUntilTheStop) {
  Save("a.json", {KeyDown(10, 30)});
  EXPECT_TRUE(MayWrite("a.json"));
  Start(7, "a.json");
  EXPECT_EQ(1, Handles("a.json"));
  EXPECT_FALSE(MayWrite("a.json"));
  Wait(100);  // it has ended, and can be restarted
  EXPECT_EQ(1, Handles("a.json"));
  EXPECT_FALSE(MayWrite("a.json"));
  Stop(7, "a.json");
  EXPECT_EQ(0, Handles("a.json"));
  EXPECT_TRUE(MayWrite("a.json"));
}

TEST_F(ReplayHolds, AFileIsHeldWhilePaused) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Pause(7, "a.json");
  EXPECT_FALSE(MayWrite("a.json"));
  StopAll();
  EXPECT_TRUE(MayWrite("a.json"));
}

TEST_F(ReplayHolds, ReadersAreWelcome) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  RecordInfo info;
  EXPECT_TRUE(GetRecordInfo(Path("a.json"), &info));
  const int file = open(Path("a.json").toLocal8Bit().constData(), O_RDONLY | O_CLOEXEC);
  EXPECT_EQ(0, flock(file, LOCK_SH | LOCK_NB));
  close(file);
}

TEST_F(ReplayHolds, TheSecondReplayOfAFileTakesTheEntry) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Start(8, "a.json");
  EXPECT_EQ(2, Handles("a.json"));
  Stop(7, "a.json");
  EXPECT_EQ(1, Handles("a.json"));
  Stop(8, "a.json");
  EXPECT_EQ(1, Handles("a.json"));  // the first one's stays open permanently
  EXPECT_FALSE(MayWrite("a.json"));
}

TEST_F(ReplayHolds, FilesAreHeldOneByOne) {
  Save("a.json", {KeyDown(1000, 30)});
  Save("b.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Start(7, "b.json");
  Stop(7, "a.json");
  EXPECT_TRUE(MayWrite("a.json"));
  EXPECT_FALSE(MayWrite("b.json"));
}

TEST_F(ReplayHolds, AFileThatSomebodyWritesIsPlayedAllTheSame) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  const int file = open(Path("a.json").toLocal8Bit().constData(), O_RDWR | O_CLOEXEC);
  ASSERT_EQ(0, flock(file, LOCK_EX));
  Start(7, "a.json");
  Wait(50);
  EXPECT_STORY("0ms > started 7 a.json", "10ms 2:KBDPR:30:1");
  Stop(7, "a.json");
  EXPECT_EQ(1, Handles("a.json"));  // this test's own
  close(file);
}

TEST_F(ReplayHolds, AFailedLoadHoldsNothing) {
  QFile(Save("a.json", {})).resize(1);  // "{"
  Start(7, "a.json");
  EXPECT_EQ(0, Handles("a.json"));
}

}  // namespace
}  // namespace taviinputmanager
