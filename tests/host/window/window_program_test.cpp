// The window as a program: how it ends when something outside ends it.
#include "host/system/terminal.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/window_program_story.h"

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

}  // namespace
}  // namespace tavi
