// The program with named pipes and devices.
#include <sys/stat.h>

#include "tests/support/program.h"

namespace tavi {
namespace {

constexpr char kGood[] = "format: 1\nitems:\n  - {type: Click, key: Space, point: [0.5, 0.5]}\n";

TEST_F(Program, WhatStandardOutputDoesNotTakeIsTold) {
  Write("good.yaml", kGood);
  const QString walk = TAVI_SOURCE_DIR "/examples/records/walk.json";
  const QList<QStringList> commands = {{"--help"},
                                       {"keys"},
                                       {"check", "good.yaml"},
                                       {"draw", "-o", "-", "good.yaml"},
                                       {"record", "info", walk},
                                       {"record", "play", walk},
                                       {"record", "draw", "-o", "-", walk}};
  for (const QStringList& command : commands) {
    SCOPED_TRACE(command.join(' ').toStdString());
    output_ = "/dev/full";
    const Outcome outcome = Run(command);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.errors, QString("tavi: standard output cannot be written: No space left on device\n"));
  }
}

// By the signal, or by exit if the signal is blocked.
TEST_F(Program, AReaderThatGoesEndsTheProgramQuietly) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Folder() + "/gone").constData(), 0600), 0);
  QProcess shell;
  shell.setWorkingDirectory(Folder());
  const QString program = TAVI_PROGRAM;
  shell.start("sh", {"-c", "{ read x <gone; \"$0\" keys; echo $? >&2; } | { exec <&-; echo x >gone; }", program});
  ASSERT_TRUE(shell.waitForFinished());
  const QByteArray status = shell.readAllStandardError().trimmed();
  EXPECT_TRUE(status == "1" || status == "141") << status.toStdString();  // 128 + SIGPIPE
}

TEST_F(Program, APipeIsNoKeymapAndNoRecord) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Folder() + "/pipe").constData(), 0600), 0);
  const QString problem = "cannot be read: not a plain file\n";
  EXPECT_EQ(Run({"check", "pipe"}).output, "pipe:1:1: error: " + problem);
  EXPECT_EQ(Run({"check", "/dev/zero"}).output, "/dev/zero:1:1: error: " + problem);
  EXPECT_EQ(Run({"draw", "-o", "a.svg", "pipe"}).errors, "pipe:1:1: error: " + problem);
  EXPECT_EQ(Run({"simulate", "pipe", "-"}).errors, "pipe:1:1: error: " + problem);
  EXPECT_EQ(Run({"record", "info", "pipe"}).errors, "pipe: error: " + problem);
  const Outcome window = Run({"window", "pipe"});
  EXPECT_EQ(window.status, 2);
  EXPECT_TRUE(window.errors.contains("tavi window: not a plain file: pipe\n")) << window.errors.toStdString();
}

}  // namespace
}  // namespace tavi
