// The window as a program. The instance that it mirrors to is a bare server here.
#ifndef TESTS_HOST_WINDOW_WINDOW_PROGRAM_STORY_H_
#define TESTS_HOST_WINDOW_WINDOW_PROGRAM_STORY_H_

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "test_folders.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"
#include "tests/support/system/program_end.h"

namespace tavi {

// A finger that is put down at once and stays for an hour.
constexpr char kHeldRecord[] = R"~({"info": {"total_running_time": 3600000}, "actions": [
  {"timing": 0, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"},
  {"timing": 3600000, "type": "touch", "data": "release", "extra1": "2"}]})~";

class WindowProgram : public testing::Test {
 protected:
  WindowProgram() {
    // No other test uses these names of files and pipes.
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));
    qputenv("USERNAME", QFileInfo(folder_.path()).fileName().toUtf8());
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder_.filePath("data")));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder_.filePath("config")));
    QFile record(Path("held.json"));
    EXPECT_TRUE(record.open(QIODevice::WriteOnly));
    record.write(kHeldRecord);
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
    said_.clear();
    socket_ = nullptr;
    MakeEndable(&program_);
    program_.start(TAVI_PROGRAM, usual + options);
    ASSERT_TRUE(taviinputmanager::RunEventsUntil([&] { return HasSaid("SLOTPRESS"); }))
        << program_.readAllStandardError().toStdString();
  }

  // What the window sends to the instance that it mirrors to, which is this test.
  bool HasSaid(const char* part) {
    if (!socket_) socket_ = guest_.nextPendingConnection();
    MirrorMessage message;
    while (socket_ && ReadMirrorMessage(socket_, &message) == MirrorReading::kMessage) said_ += message.line;
    return !said_.filter(QLatin1String(part)).isEmpty();
  }

  int EndBy(const ProgramEnd& end) {
    SendEnd(program_, end);
    EXPECT_TRUE(taviinputmanager::RunEventsUntil([&] { return program_.state() == QProcess::NotRunning; }));
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

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_WINDOW_PROGRAM_STORY_H_
