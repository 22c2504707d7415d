// The window as a program: how it ends when something outside ends it.
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "taviinputmanager/taviinputmanager.h"
#include "test_folders.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

// A finger that is put down at once and stays for an hour.
constexpr char kHeld[] = R"~({"info": {"total_running_time": 3600000}, "actions": [
  {"timing": 0, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"},
  {"timing": 3600000, "type": "touch", "data": "release", "extra1": "2"}]})~";

class WindowProgram : public testing::Test {
 protected:
  WindowProgram() {
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.filePath("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.filePath("config")));
    QFile record(Path("held.json"));
    EXPECT_TRUE(record.open(QIODevice::WriteOnly));
    record.write(kHeld);
    record.close();
    EXPECT_TRUE(guest_.listen(MirrorAddressOf("guest")));
  }
  ~WindowProgram() override {
    if (program_.state() == QProcess::NotRunning) return;
    program_.kill();
    program_.waitForFinished();
  }

  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  // Starts a window that replays the record with the finger, and waits until the finger is down.
  void StartWithAFingerDown(const QStringList& options) {
    const QStringList usual{"window", "-platform", "offscreen", "--replay", Path("held.json"), "--mirror", "guest"};
    program_.start(TAVI_PROGRAM, usual + options);
    ASSERT_TRUE(RunEventsUntil([&] { return HasSaid("SLOTPRESS"); })) << program_.readAllStandardError().toStdString();
  }

  // What the window sends to the instance that it mirrors to, which is this test.
  bool HasSaid(const char* part) {
    if (!socket_) socket_ = guest_.nextPendingConnection();
    MirrorMessage message;
    while (socket_ && ReadMirrorMessage(socket_, &message) == MirrorReading::kMessage) said_ += message.line;
    return !said_.filter(QLatin1String(part)).isEmpty();
  }

  int EndBy(int number) {
    kill(static_cast<pid_t>(program_.processId()), number);
    EXPECT_TRUE(RunEventsUntil([&] { return program_.state() == QProcess::NotRunning; }));
    EXPECT_EQ(program_.exitStatus(), QProcess::NormalExit);
    return program_.exitCode();
  }

 private:
  ApplicationObject<QCoreApplication> application_;

 protected:
  QTemporaryDir folder_;
  QProcess program_;
  QLocalServer guest_;
  QLocalSocket* socket_ = nullptr;  // owned by the server
  QStringList said_;
};

TEST_F(WindowProgram, ASignalEndsItInOrder) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    SCOPED_TRACE(number);
    said_.clear();
    socket_ = nullptr;
    const QString record = Path("record.json");
    StartWithAFingerDown({"--listen", "window", "--record", record});
    EXPECT_TRUE(QFileInfo::exists(MirrorAddressOf("window")));
    EXPECT_EQ(EndBy(number), 128 + number);
    EXPECT_TRUE(RunEventsUntil([&] { return HasSaid("RELEASE"); }));
    EXPECT_FALSE(QFileInfo::exists(MirrorAddressOf("window")));
    RecordInfo info;
    EXPECT_TRUE(taviinputmanager::GetRecordInfo(record, &info));
    EXPECT_TRUE(QFile::remove(record));
  }
}

TEST_F(WindowProgram, ASignalLiftsWhatItsGuestsHaveDown) {
  for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
    SCOPED_TRACE(number);
    said_.clear();
    socket_ = nullptr;
    StartWithAFingerDown({"--guest", "exec:cat > '" + Path("lines") + "'"});
    EXPECT_EQ(EndBy(number), 128 + number);
    QFile lines(Path("lines"));
    ASSERT_TRUE(lines.open(QIODevice::ReadOnly));
    const QByteArray got = lines.readAll();
    const int down = got.indexOf("1:SLOTPRESS:18:18:1:1:640:360\n");
    EXPECT_GE(down, 0);
    EXPECT_GT(got.indexOf("1:SLOTRELEASE", down), down) << got.toStdString();
    EXPECT_TRUE(got.endsWith('\n'));
  }
}

TEST_F(WindowProgram, ItRemembersUnlessItIsFresh) {
  const QString file = Path("config/tavi/window.ini");
  StartWithAFingerDown({"--fresh", "--size", "800x600"});
  EndBy(SIGTERM);
  EXPECT_FALSE(QFileInfo::exists(file));
  socket_ = nullptr;
  said_.clear();
  StartWithAFingerDown({"--guest", "800x600"});  // the former name of --size
  EXPECT_TRUE(HasSaid(":400:300"));              // the middle
  EndBy(SIGTERM);
  EXPECT_TRUE(QFileInfo::exists(file));
  socket_ = nullptr;
  said_.clear();
  StartWithAFingerDown({});
  EXPECT_TRUE(HasSaid(":400:300"));
  EndBy(SIGTERM);
  socket_ = nullptr;
  said_.clear();
  StartWithAFingerDown({"--fresh"});
  EXPECT_TRUE(HasSaid(":640:360"));
  EndBy(SIGTERM);
}

TEST_F(WindowProgram, WhatIsRememberedAndMakesNoSenseCountsForNothing) {
  ASSERT_TRUE(QDir().mkpath(Path("config/tavi")));
  QFile settings(Path("config/tavi/window.ini"));
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write("[window]\nsize=nonsense\nlayout=nonsense\n[General]\noptions=@Invalid()\n");
  settings.close();
  StartWithAFingerDown({});
  EXPECT_TRUE(HasSaid(":640:360"));
  EXPECT_EQ(EndBy(SIGTERM), 128 + SIGTERM);
}

// In the last session F11 was the pause key; now it is the panic key.
TEST_F(WindowProgram, WhatIsRememberedAndDoesNotGoWithTheRestIsLeftOutAlone) {
  StartWithAFingerDown({"--guest", "800x600", "--pause-key", "F11"});
  EndBy(SIGTERM);
  program_.readAllStandardError();
  socket_ = nullptr;
  said_.clear();
  StartWithAFingerDown({"--panic-key", "F11"});
  EXPECT_TRUE(HasSaid(":400:300"));
  EndBy(SIGTERM);
  EXPECT_TRUE(program_.readAllStandardError().contains(
      "--pause-key F11 from the last session is ignored: --pause-key and --panic-key use the same key"));
}

TEST_F(WindowProgram, ARecordingThatCannotBeSavedIsKept) {
  StartWithAFingerDown({"--record", "/dev/full"});
  EXPECT_EQ(EndBy(SIGTERM), 128 + SIGTERM);
  const QString told = QString::fromUtf8(program_.readAllStandardError());
  const QString start =
      "tavi window: /dev/full cannot be written: No space left on device; the recording was saved as ";
  ASSERT_TRUE(told.contains(start)) << told.toStdString();
  const QString kept = told.mid(told.indexOf(start) + start.size()).trimmed();
  RecordInfo info;
  EXPECT_TRUE(taviinputmanager::GetRecordInfo(kept, &info)) << kept.toStdString();
}

// For example a pager that was closed; nobody reads any message then.
TEST_F(WindowProgram, ItsWordsNeedNoReaderFromTheStart) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Path("gone")).constData(), 0600), 0);
  program_.setWorkingDirectory(folder_.path());
  const QString line =
      "{ read x <gone; \"$0\" window -platform offscreen --record a.json --picture a.png --after 0 2>&1; echo $? "
      ">status; "
      "} | { exec <&-; echo x >gone; }";
  program_.start("sh", {"-c", line, TAVI_PROGRAM});
  ASSERT_TRUE(program_.waitForFinished());
  QFile status(Path("status"));
  ASSERT_TRUE(status.open(QIODevice::ReadOnly));
  EXPECT_EQ(status.readAll().trimmed(), QByteArray("1"));  // its message that nothing was recorded
}

TEST_F(WindowProgram, WhatCannotBeRecordedOrListenedAsIsToldAtTheStart) {
  const struct {
    QStringList arguments;
    int status;
    QString error;
  } rows[] = {
      {{"--record", Path("none/a.json")},
       1,
       "tavi window: cannot write " + Path("none/a.json") + ": No such file or directory\n"},
      {{"--listen", Path("held.json")}, 2, "tavi window: --listen: a name has up to 64 letters"},
      {{"--mirror", "left,../right"}, 2, "tavi window: --mirror: a name has up to 64 letters"},
      {{"--listen", "guest"}, 1, "tavi window: cannot listen as guest: another instance listens as guest\n"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.error.toStdString());
    program_.start(TAVI_PROGRAM, QStringList{"window", "-platform", "offscreen"} + row.arguments);
    ASSERT_TRUE(program_.waitForFinished());
    EXPECT_EQ(program_.exitCode(), row.status);
    const QString told = QString::fromUtf8(program_.readAllStandardError());
    EXPECT_TRUE(told.contains(row.error)) << told.toStdString();
  }
  EXPECT_TRUE(QFileInfo::exists(Path("held.json")));
}

TEST_F(WindowProgram, APictureThatCannotBeWrittenLeavesTheOneThatWasThere) {
  program_.start(TAVI_PROGRAM, {"window", "-platform", "offscreen", "--picture", "/dev/full", "--after", "0"});
  ASSERT_TRUE(program_.waitForFinished());
  EXPECT_EQ(program_.exitCode(), 1);
  EXPECT_TRUE(
      program_.readAllStandardError().contains("tavi window: cannot write /dev/full: No space left on device\n"));
  program_.start(TAVI_PROGRAM, {"window", "-platform", "offscreen", "--picture", Path("a.png"), "--after", "0"});
  ASSERT_TRUE(program_.waitForFinished());
  EXPECT_EQ(program_.exitCode(), 0);
  EXPECT_GT(QFileInfo(Path("a.png")).size(), 1000);
}

}  // namespace
}  // namespace tavi
