// The window as a program: what it remembers, and what happens where nobody reads or nothing can be written.
#include <csignal>
#include <sys/stat.h>

#include <QDir>

#include "host/system/terminal.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_program_story.h"

namespace tavi {
namespace {

constexpr ProgramEnd kTermination = {"SIGTERM", SIGTERM, SIGTERM};

TEST_F(WindowProgram, ASignalLiftsWhatItsGuestsHaveDown) {
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    StartWithAFingerDown({"--guest", "exec:cat > '" + Path("lines") + "'"});
    EXPECT_EQ(EndBy(end), ExitStatusOfSignal(end.number));
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
  EndBy(kTermination);
  EXPECT_FALSE(QFileInfo::exists(file));
  StartWithAFingerDown({"--guest", "800x600"});  // the former name of --size
  EXPECT_TRUE(HasSaid(":400:300"));              // the middle
  EndBy(kTermination);
  EXPECT_TRUE(QFileInfo::exists(file));
  StartWithAFingerDown({});
  EXPECT_TRUE(HasSaid(":400:300"));
  EndBy(kTermination);
  StartWithAFingerDown({"--fresh"});
  EXPECT_TRUE(HasSaid(":640:360"));
  EndBy(kTermination);
}

TEST_F(WindowProgram, WhatIsRememberedAndMakesNoSenseCountsForNothing) {
  ASSERT_TRUE(QDir().mkpath(Path("config/tavi")));
  QFile settings(Path("config/tavi/window.ini"));
  ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
  settings.write("[window]\nsize=nonsense\nlayout=nonsense\n[General]\noptions=@Invalid()\n");
  settings.close();
  StartWithAFingerDown({});
  EXPECT_TRUE(HasSaid(":640:360"));
  EXPECT_EQ(EndBy(kTermination), 128 + SIGTERM);
}

// In the last session F11 was the pause key; now it is the panic key.
TEST_F(WindowProgram, WhatIsRememberedAndDoesNotGoWithTheRestIsLeftOutAlone) {
  StartWithAFingerDown({"--guest", "800x600", "--pause-key", "F11"});
  EndBy(kTermination);
  program_.readAllStandardError();
  StartWithAFingerDown({"--panic-key", "F11"});
  EXPECT_TRUE(HasSaid(":400:300"));
  EndBy(kTermination);
  EXPECT_TRUE(program_.readAllStandardError().contains(
      "--pause-key F11 from the last session is ignored: --pause-key and --panic-key use the same key"));
}

TEST_F(WindowProgram, ARecordingThatCannotBeSavedIsKept) {
  StartWithAFingerDown({"--record", "/dev/full"});
  EXPECT_EQ(EndBy(kTermination), 128 + SIGTERM);
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
