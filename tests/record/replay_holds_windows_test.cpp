// Which files replays hold: other programs may read them, but neither write nor delete them.
#include <windows.h>

#include <QDir>
#include <QFile>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/replay_story.h"
#include "windows/native_path.h"

namespace taviinputmanager {
namespace {

class ReplayHolds : public ReplayStory {
 protected:
  // The kinds of access that another program gets, of "read write delete". Deletes nothing.
  std::string Allowed(const QString& name) const {
    const struct {
      const char* name;
      DWORD access;
    } wishes[] = {{"read", GENERIC_READ}, {"write", GENERIC_WRITE}, {"delete", DELETE}};
    QStringList allowed;
    for (const auto& wish : wishes) {
      if (Opens(name, wish.access)) allowed += QLatin1String(wish.name);
    }
    return allowed.join(' ').toStdString();
  }

 private:
  // Opens with full sharing, so that only the holder's share mode can deny access.
  bool Opens(const QString& name, DWORD access) const {
    const HANDLE file = CreateFileW(windows::NativePath(Path(name)).c_str(), access,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return true;
  }
};

TEST_F(ReplayHolds, AFileIsHeldUntilTheStop) {
  Save("a.json", {KeyDown(10, 30)});
  EXPECT_EQ(Allowed("a.json"), "read write delete");
  Start(7, "a.json");
  EXPECT_EQ(Allowed("a.json"), "read");
  Wait(100);  // it has ended, and can be restarted
  EXPECT_EQ(Allowed("a.json"), "read");
  Stop(7, "a.json");
  EXPECT_EQ(Allowed("a.json"), "read write delete");
}

TEST_F(ReplayHolds, AFileIsHeldWhilePaused) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Pause(7, "a.json");
  EXPECT_EQ(Allowed("a.json"), "read");
  StopAll();
  EXPECT_EQ(Allowed("a.json"), "read write delete");
}

TEST_F(ReplayHolds, ReadersAreWelcome) {
  Save("a.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  RecordInfo info;
  EXPECT_TRUE(GetRecordInfo(Path("a.json"), &info));
}

TEST_F(ReplayHolds, FilesAreHeldOneByOne) {
  Save("a.json", {KeyDown(1000, 30)});
  Save("b.json", {KeyDown(1000, 30)});
  Start(7, "a.json");
  Start(7, "b.json");
  Stop(7, "a.json");
  EXPECT_EQ(Allowed("a.json"), "read write delete");
  EXPECT_EQ(Allowed("b.json"), "read");
}

// Then the replay cannot hold it.
TEST_F(ReplayHolds, AFileThatSomebodyWritesIsPlayedAllTheSame) {
  Save("a.json", {KeyDown(10, 30), KeyUp(1000, 30)});
  QFile writer(Path("a.json"));
  ASSERT_TRUE(writer.open(QIODevice::ReadWrite));
  Start(7, "a.json");
  Wait(50);
  EXPECT_STORY("0ms > started 7 a.json", "10ms 2:KBDPR:30:1");
  Stop(7, "a.json");
  writer.close();
  EXPECT_EQ(Allowed("a.json"), "read write delete");
}

// A name of more than 260 characters, with characters outside all code pages of this system.
TEST_F(ReplayHolds, AFileWithALongNameIsHeld) {
  const QString folder = QString(200, QChar(0x6E38));
  ASSERT_TRUE(QDir(Path(".")).mkdir(folder));
  const QString name = folder + "/" + QString(100, QChar(0x0416)) + ".json";
  Save(name, {KeyDown(10, 30)});
  Start(7, name);
  EXPECT_EQ(Allowed(name), "read");
  Stop(7, name);
  EXPECT_EQ(Allowed(name), "read write delete");
}

}  // namespace
}  // namespace taviinputmanager
