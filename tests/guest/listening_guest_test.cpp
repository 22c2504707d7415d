// The program tavi-guest from the point of view of front ends. It creates no devices here, and prints what it would do.
#include <csignal>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "test_folders.h"
#include "tests/support/application_object.h"

namespace taviguest {
namespace {

constexpr char kFingerDown[] =
    "screen EV_ABS ABS_MT_SLOT 2\n"
    "screen EV_ABS ABS_MT_TRACKING_ID 2\n"
    "screen EV_ABS ABS_MT_POSITION_X 640\n"
    "screen EV_ABS ABS_MT_POSITION_Y 360\n"
    "screen EV_KEY BTN_TOUCH 1\n"
    "screen EV_SYN SYN_REPORT 0\n";
constexpr char kFingerUp[] =
    "screen EV_ABS ABS_MT_SLOT 2\n"
    "screen EV_ABS ABS_MT_TRACKING_ID -1\n"
    "screen EV_KEY BTN_TOUCH 0\n"
    "screen EV_SYN SYN_REPORT 0\n";
constexpr char kFingerLine[] = "1:SLOTPRESS:2:2:1:1:640:360\n";

class ListeningGuest : public testing::Test {
 protected:
  ListeningGuest() = default;

  ~ListeningGuest() override {
    guest_.kill();
    guest_.waitForFinished();
  }

  void Start(const QStringList& words) {
    guest_.start(QStringLiteral(TAVI_BINARY_DIR "/guest/tavi-guest"), QStringList{"--dry-run"} + words);
    ASSERT_TRUE(guest_.waitForStarted());
  }

  void ListenAtPath() {
    Start({"--listen", "unix:" + Path()});
    ASSERT_EQ(ReadLines(1), "listening on unix:" + Path().toStdString() + '\n');
  }

  QString Path() const { return folder_.filePath(QStringLiteral("guest")); }

  void Connect(QLocalSocket* front_end) const {
    front_end->connectToServer(Path());
    ASSERT_TRUE(front_end->waitForConnected());
  }

  static void Send(QLocalSocket* front_end, const QByteArray& lines) {
    front_end->write(lines);
    ASSERT_TRUE(front_end->bytesToWrite() == 0 || front_end->waitForBytesWritten());
  }

  // That many further lines of the guest's output.
  std::string ReadLines(int count) {
    std::string lines;
    for (; count > 0; --count) {
      while (!guest_.canReadLine()) {
        if (!guest_.waitForReadyRead()) return lines + "and no more";
      }
      lines += guest_.readLine().toStdString();
    }
    return lines;
  }

  int End(int signal) {
    kill(static_cast<pid_t>(guest_.processId()), signal);
    EXPECT_TRUE(guest_.waitForFinished());
    EXPECT_EQ(guest_.exitStatus(), QProcess::NormalExit);
    return guest_.exitCode();
  }

  QProcess guest_;

 private:
  tavi::ApplicationObject<QCoreApplication> application_;
  QTemporaryDir folder_;
};

TEST_F(ListeningGuest, PlaysTheLinesOfItsFrontEndAndLiftsWhenItLeaves) {
  ListenAtPath();
  QLocalSocket front_end;
  Connect(&front_end);
  Send(&front_end, kFingerLine);
  EXPECT_EQ(ReadLines(6), kFingerDown);
  front_end.abort();
  EXPECT_EQ(ReadLines(4), kFingerUp);
}

TEST_F(ListeningGuest, TakesOneFrontEndAfterTheOther) {
  ListenAtPath();
  for (int i = 0; i < 3; ++i) {
    QLocalSocket front_end;
    Connect(&front_end);
    Send(&front_end, "1:SLOTRELEASE:2\n");  // already up, whatever the previous front end left behind
    Send(&front_end, kFingerLine);
    EXPECT_EQ(ReadLines(6), kFingerDown);
    front_end.abort();
    EXPECT_EQ(ReadLines(4), kFingerUp);
  }
}

TEST_F(ListeningGuest, RefusesASecondFrontEndWhileThereIsOne) {
  ListenAtPath();
  QLocalSocket first;
  Connect(&first);
  Send(&first, kFingerLine);
  EXPECT_EQ(ReadLines(6), kFingerDown);
  QLocalSocket second;
  Connect(&second);
  EXPECT_TRUE(second.state() == QLocalSocket::UnconnectedState || second.waitForDisconnected());
  EXPECT_EQ(second.readAll(), "busy: another front end is connected\n");
  Send(&first, "1:SLOTRELEASE:2\n");
  EXPECT_EQ(ReadLines(4), kFingerUp);
}

// It may be the beginning of any line: this would lift finger 2 when finger 20 was meant.
TEST_F(ListeningGuest, ALineThatWasCutOffIsNotPlayed) {
  ListenAtPath();
  QLocalSocket front_end;
  Connect(&front_end);
  Send(&front_end, "1:KBDPR:30:1\n1:KBDRL:30:0");
  front_end.disconnectFromServer();
  EXPECT_EQ(ReadLines(4),
            "keyboard EV_KEY KEY_A 1\nkeyboard EV_SYN SYN_REPORT 0\n"
            "keyboard EV_KEY KEY_A 0\nkeyboard EV_SYN SYN_REPORT 0\n");  // once: the lift
  EXPECT_EQ(End(SIGTERM), 128 + SIGTERM);
  EXPECT_EQ(guest_.readAll(), "");
}

TEST_F(ListeningGuest, ASignalLiftsRemovesTheSocketAndTells) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    ListenAtPath();
    QLocalSocket front_end;
    Connect(&front_end);
    Send(&front_end, kFingerLine);
    EXPECT_EQ(ReadLines(6), kFingerDown);
    EXPECT_EQ(End(signal), 128 + signal);
    EXPECT_EQ(guest_.readAll().toStdString(), kFingerUp);
    EXPECT_FALSE(QFile::exists(Path()));
  }
}

TEST_F(ListeningGuest, ItsSocketIsForItsOwnerAlone) {
  ListenAtPath();
  struct stat made {};
  ASSERT_EQ(stat(QFile::encodeName(Path()).constData(), &made), 0);
  EXPECT_EQ(made.st_mode & 0777U, 0600U);
}

TEST_F(ListeningGuest, ASocketThatAKilledGuestLeftIsReplaced) {
  ListenAtPath();
  guest_.kill();
  ASSERT_TRUE(guest_.waitForFinished());
  ASSERT_TRUE(QFile::exists(Path()));
  ListenAtPath();
  QLocalSocket front_end;
  Connect(&front_end);
}

TEST_F(ListeningGuest, NothingElseIsReplaced) {
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("mine");
  file.close();
  Start({"--listen", "unix:" + Path()});
  ASSERT_TRUE(guest_.waitForFinished());
  EXPECT_EQ(guest_.exitCode(), 2);
  EXPECT_EQ(guest_.readAllStandardError(), "tavi-guest: " + Path().toUtf8() + " already exists and is not a socket\n");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "mine");
}

TEST_F(ListeningGuest, AProgramThatListensIsLeftAlone) {
  QLocalServer other;
  ASSERT_TRUE(other.listen(Path()));
  Start({"--listen", "unix:" + Path()});
  ASSERT_TRUE(guest_.waitForFinished());
  EXPECT_EQ(guest_.exitCode(), 2);
  EXPECT_EQ(guest_.readAllStandardError(), "tavi-guest: " + Path().toUtf8() + ": another program listens there\n");
  EXPECT_TRUE(QFile::exists(Path()));
}

TEST_F(ListeningGuest, APortIsOneOfTheLoopback) {
  Start({"--listen", "tcp:0"});
  const QString place = QString::fromStdString(ReadLines(1)).trimmed();
  ASSERT_TRUE(place.startsWith(QStringLiteral("listening on tcp:127.0.0.1:"))) << place.toStdString();
  QTcpSocket front_end;
  front_end.connectToHost(QStringLiteral("127.0.0.1"), place.section(QLatin1Char(':'), -1).toUShort());
  ASSERT_TRUE(front_end.waitForConnected());
  front_end.write(kFingerLine);
  ASSERT_TRUE(front_end.waitForBytesWritten());
  EXPECT_EQ(ReadLines(6), kFingerDown);
  front_end.abort();
  EXPECT_EQ(ReadLines(4), kFingerUp);
}

// A dry run of a file prints only its lines; a signal may come in the middle of a gesture.
TEST_F(ListeningGuest, ASignalLiftsWhatAPipeHasPutDown) {
  Start({});
  guest_.write(kFingerLine);
  EXPECT_EQ(ReadLines(6), kFingerDown);
  EXPECT_EQ(End(SIGINT), 128 + SIGINT);
  EXPECT_EQ(guest_.readAll().toStdString(), kFingerUp);
}

TEST_F(ListeningGuest, ANamedPipeIsReadToItsEnd) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Path()).constData(), 0600), 0);
  Start({"--input", Path()});
  QFile pipe(Path());
  ASSERT_TRUE(pipe.open(QIODevice::WriteOnly));
  pipe.write(kFingerLine);
  pipe.close();
  EXPECT_EQ(ReadLines(6), kFingerDown);
  ASSERT_TRUE(guest_.waitForFinished());
  EXPECT_EQ(guest_.exitCode(), 0);
}

TEST_F(ListeningGuest, TellsHowItIsUsed) {
  Start({"--help"});
  ASSERT_TRUE(guest_.waitForFinished());
  EXPECT_TRUE(guest_.readAllStandardOutput().startsWith(
      "tavi-guest - plays guest lines on kernel input devices\n\nUsage: tavi-guest [OPTIONS]\n"));
  Start({"--sise", "1x1"});
  ASSERT_TRUE(guest_.waitForFinished());
  EXPECT_EQ(guest_.exitCode(), 2);
  EXPECT_EQ(guest_.readAllStandardError(), "tavi-guest: unknown option \"--sise\"\nTry \"tavi-guest --help\".\n");
}

}  // namespace
}  // namespace taviguest
