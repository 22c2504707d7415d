// The window as a program: how it ends when something outside ends it.
#include <QDir>

#include "host/system/terminal.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_program_story.h"
#include "tests/support/system/data_folder.h"

namespace tavi {
namespace {

bool Listens(const char* name) {
  QLocalSocket socket;
  socket.connectToServer(MirrorAddressOf(QLatin1String(name)));
  return socket.waitForConnected();
}

TEST_F(WindowProgram, ASignalEndsItInOrder) {
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    const QString record = Path("record.json");
    StartWithAFingerDown({"--fresh", "--listen", "window", "--record", record});
    EXPECT_TRUE(Listens("window"));
    EXPECT_EQ(EndBy(end), ExitStatusOfSignal(end.number));
    EXPECT_TRUE(taviinputmanager::RunEventsUntil([&] { return HasSaid("RELEASE"); })) << said_.join('|').toStdString();
    EXPECT_FALSE(Listens("window"));
    EXPECT_FALSE(QFileInfo::exists(MirrorAddressOf("window")));
    RecordInfo info;
    EXPECT_TRUE(taviinputmanager::GetRecordInfo(record, &info));
    EXPECT_TRUE(QFile::remove(record));
  }
}

TEST_F(WindowProgram, ARecordingWhoseFolderIsGoneIsKept) {
  const DataFolder data(folder_.path());
  for (const ProgramEnd& end : ProgramEnds()) {
    SCOPED_TRACE(end.name);
    ASSERT_TRUE(QDir().mkpath(Path("gone")));
    StartWithAFingerDown({"--fresh", "--record", Path("gone/record.json")});
    ASSERT_TRUE(QDir(Path("gone")).removeRecursively());
    EXPECT_EQ(EndBy(end), ExitStatusOfSignal(end.number));
    const QString told = QString::fromUtf8(program_.readAllStandardError());
    const QString start = "; the recording was saved as ";
    ASSERT_TRUE(told.contains(start)) << told.toStdString();
    const QString kept = told.mid(told.indexOf(start) + start.size()).trimmed();
    RecordInfo info;
    EXPECT_TRUE(taviinputmanager::GetRecordInfo(kept, &info)) << kept.toStdString();
    EXPECT_TRUE(QFile::remove(kept));
  }
}

}  // namespace
}  // namespace tavi
