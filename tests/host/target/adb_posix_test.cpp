// The path to a phone, as far as it can be tested without one: a script acts as adb and the phone.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "host/target/guest_targets.h"
#include "test_folders.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using State = TargetStatus::State;
using taviinputmanager::RunEventsUntil;

class Adb : public testing::Test {
 protected:
  Adb() {
    qputenv("PHONE", QFile::encodeName(folder_.path()));
    qputenv("PATH", TAVI_SOURCE_DIR "/tests/host/target:" + qgetenv("PATH"));
    QObject::connect(&targets_, &GuestTargets::Message, &targets_,
                     [this](const QString& text) { messages_.append(text); });
  }
  ~Adb() override { targets_.Close(); }

  // This machine's guest program, for the phone to run.
  void PushGuest() {
    QFile program(folder_.filePath("tavi-guest"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho ready\nexec '" TAVI_PROGRAM "' guest-uinput \"$@\"\n");
    program.close();
    ASSERT_TRUE(program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(Run({"push", program.fileName(), "/data/local/tmp/"}).endsWith("1 file pushed, 0 skipped."));
    EXPECT_EQ(Run({"shell", "chmod 755 /data/local/tmp/tavi-guest"}), QString());
  }

  static QString Run(const QStringList& words) {
    QProcess adb;
    adb.start("adb", words);
    EXPECT_TRUE(adb.waitForFinished());
    EXPECT_EQ(adb.exitCode(), 0) << adb.readAllStandardError().toStdString();
    return QString::fromUtf8(adb.readAllStandardOutput()).trimmed();
  }

  void Reach(const QString& text) {
    targets_.Add(ParseTarget(text, false).address);
    ASSERT_TRUE(RunEventsUntil([&] { return targets_.StatusOf(0).state == State::kConnected; }));
  }
  void Send(const QByteArray& line) { targets_.Send((line + '\n').constData(), line.size() + 1); }

 private:
  ApplicationObject<QCoreApplication> application_;

 protected:
  QTemporaryDir folder_;
  GuestTargets targets_;
  QStringList messages_;
};

TEST_F(Adb, AGuestOnThePhoneGetsTheLinesOnItsStandardInput) {
  if (QStandardPaths::findExecutable("python3").isEmpty()) GTEST_SKIP() << "the stand-in is a script of Python";
  PushGuest();
  const QString target = "exec:adb shell /data/local/tmp/tavi-guest --size 1080x2400";
  Reach(target);
  Send("1:SLOTPRESS:11:11:1:1:2000:533");
  ASSERT_TRUE(RunEventsUntil([&] { return messages_.contains(target + ": screen EV_SYN SYN_REPORT 0"); }));
  targets_.Close();  // the finger is still down
  QStringList said = messages_.mid(messages_.indexOf(target + ": ready") + 1);
  said.replaceInStrings(target + ": ", QString());
  // The nearest position on a surface of that size, and the release.
  const QStringList expected{"screen EV_ABS ABS_MT_SLOT 11",
                             "screen EV_ABS ABS_MT_TRACKING_ID 11",
                             "screen EV_ABS ABS_MT_POSITION_X 1079",
                             "screen EV_ABS ABS_MT_POSITION_Y 533",
                             "screen EV_KEY BTN_TOUCH 1",
                             "screen EV_SYN SYN_REPORT 0",
                             "screen EV_ABS ABS_MT_SLOT 11",
                             "screen EV_ABS ABS_MT_TRACKING_ID -1",
                             "screen EV_KEY BTN_TOUCH 0",
                             "screen EV_SYN SYN_REPORT 0"};
  EXPECT_EQ(said.join('\n').toStdString(), expected.join('\n').toStdString());
}

TEST_F(Adb, AGuestOnThePhoneIsReachedByAForwardedPort) {
  if (QStandardPaths::findExecutable("python3").isEmpty()) GTEST_SKIP() << "the stand-in is a script of Python";
  QTcpServer guest;
  ASSERT_TRUE(guest.listen(QHostAddress::LocalHost));
  const QString port = Run({"forward", "tcp:0", QStringLiteral("tcp:%1").arg(guest.serverPort())});
  Reach("tcp:localhost:" + port);
  ASSERT_TRUE(RunEventsUntil([&] { return guest.hasPendingConnections(); }));
  QTcpSocket* socket = guest.nextPendingConnection();
  Send("1:KBDPR:30:1");
  targets_.Close();
  ASSERT_TRUE(RunEventsUntil([&] { return socket->state() == QAbstractSocket::UnconnectedState; }));
  EXPECT_EQ(socket->readAll(), "1:KBDPR:30:1\n1:KBDRL:30:0\n");
}

}  // namespace
}  // namespace tavi
