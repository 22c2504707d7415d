// Lines for commands, and for guests that read nothing.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QLocalSocket>
#include <QTcpServer>
#include <QTcpSocket>

#include "host/target/guest_targets.h"
#include "tests/host/target/guest_targets_story.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

// A socket that accepts connections, and reads nothing until the test asks for it.
class SilentGuest {
 public:
  explicit SilentGuest(const QString& path) : file_(socket(AF_UNIX, SOCK_STREAM, 0)) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path).constData(), sizeof(address.sun_path));
    EXPECT_EQ(bind(file_, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(listen(file_, 1), 0);
  }
  ~SilentGuest() { close(file_); }
  SilentGuest(const SilentGuest&) = delete;
  SilentGuest& operator=(const SilentGuest&) = delete;

  void BeginToRead() { socket_.setSocketDescriptor(accept(file_, nullptr, nullptr)); }
  QList<QByteArray> Lines() {
    got_ += socket_.readAll();
    return got_.split('\n');
  }

 private:
  const int file_;
  QLocalSocket socket_;
  QByteArray got_;
};

TEST_F(GuestTargetsTest, EachTargetGetsAllLines) {
  SocketGuest first(Path("first"));
  QTcpServer second;
  ASSERT_TRUE(second.listen(QHostAddress::LocalHost));
  Reach("unix:" + Path("first"));
  Reach(QStringLiteral("tcp:localhost:%1").arg(second.serverPort()));
  Reach("exec:cat > '" + Path("third") + "'");
  Send("1:KBDPR:30:1");
  Send("1:KBDRL:30:0");
  const QByteArray expected = "1:KBDPR:30:1\n1:KBDRL:30:0\n";
  EXPECT_TRUE(first.Gets(expected));
  QTcpSocket* socket = second.nextPendingConnection();
  EXPECT_TRUE(RunEventsUntil([&] { return socket->bytesAvailable() == expected.size(); }));
  EXPECT_EQ(socket->readAll(), expected);
  targets_.Close();
  EXPECT_EQ(Content("third"), expected);
  EXPECT_EQ(targets_.Count(), 0);
}

TEST_F(GuestTargetsTest, ClosingLiftsWhatIsDown) {
  Reach("exec:cat > '" + Path("lines") + "'");
  for (const char* line : {"1:SLOTPRESS:2:2:1:1:230:518", "1:KBDPR:17:1", "1:LSTICKAXIS:0:-1000000"}) Send(line);
  targets_.Close();
  EXPECT_EQ(Content("lines"),
            "1:SLOTPRESS:2:2:1:1:230:518\n1:KBDPR:17:1\n1:LSTICKAXIS:0:-1000000\n"
            "1:SLOTRELEASE:2\n1:KBDRL:17:0\n1:LSTICKAXIS:0:0\n");
  Send("1:KBDPR:17:1");  // goes nowhere
}

TEST_F(GuestTargetsTest, ATargetThatReadsNothingIsPassedByAndComesBackWithNothingDown) {
  SilentGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  const QByteArray move = "1:SLOTPRESS:2:2:1:1:230:518";
  int most = 0;
  for (int i = 0; i < 100000 && StateOf() != State::kLagging; ++i) {
    Send(move);
    most = qMax(most, targets_.StatusOf(0).waiting_bytes);
  }
  ASSERT_EQ(StateOf(), State::kLagging);
  // A queue that is full to the last line, and one line in the socket.
  EXPECT_GT(most, GuestTargets::kMostWaitingBytes - 2 * move.size());
  EXPECT_LE(most, GuestTargets::kMostWaitingBytes + 2 * move.size());
  EXPECT_LE(targets_.StatusOf(0).waiting_bytes, 100);  // the rest of a line, and the release
  EXPECT_TRUE(IsTold("unix:" + Path("guest") + " reads too slowly: lines are dropped until it has caught up"));

  Send("1:SLOTRELEASE:2");
  Send("1:SLOTPRESS:3:3:1:1:5:5");
  EXPECT_EQ(StateOf(), State::kLagging);
  guest.BeginToRead();
  ASSERT_TRUE(RunEventsUntil([&] {
    guest.Lines();
    return StateOf() == State::kConnected;
  }));
  Send("1:SLOTPRESS:3:3:1:1:6:6");
  Send("1:SLOTRELEASE:3");
  Send("1:KBDPR:30:1");
  ASSERT_TRUE(RunEventsUntil([&] { return guest.Lines().contains("1:KBDPR:30:1"); }));
  QList<QByteArray> lines = guest.Lines();
  while (!lines.isEmpty() && lines.first() == move) lines.removeFirst();  // whole ones, as far as they were read
  EXPECT_EQ(lines, (QList<QByteArray>{"1:SLOTRELEASE:2", "1:SLOTRELEASE:3", "1:KBDPR:30:1", ""}));
}

TEST_F(GuestTargetsTest, OneThatReadsNothingHoldsNeitherTheOthersNorTheEndUp) {
  SilentGuest silent(Path("silent"));
  Reach("unix:" + Path("silent"));
  Reach("exec:cat > '" + Path("lines") + "'");
  for (int i = 0; i < 100000 && StateOf() != State::kLagging; ++i) Send("1:SLOTPRESS:2:2:1:1:230:518");
  QElapsedTimer clock;
  clock.start();
  targets_.Close();
  EXPECT_LT(clock.elapsed(), 10 * (GuestTargets::kFlushMs + GuestTargets::kEndMs));
  EXPECT_TRUE(Content("lines").endsWith("230:518\n1:SLOTRELEASE:2\n"));
}

TEST_F(GuestTargetsTest, SwitchedOffItHasItsTimeForTheLastLines) {
  SilentGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  const QByteArray move = "1:SLOTPRESS:2:2:1:1:230:518";
  while (targets_.StatusOf(0).waiting_bytes < 1000) Send(move);
  targets_.Switch(0, false);
  guest.BeginToRead();
  ASSERT_TRUE(RunEventsUntil([&] { return guest.Lines().contains("1:SLOTRELEASE:2"); }));
  EXPECT_EQ(StateOf(), State::kOff);
}

TEST_F(GuestTargetsTest, WhatACommandWritesAndHowItEndsIsTold) {
  Add("exec:echo ready; echo not so good >&2; printf end; exit 3");
  ASSERT_TRUE(Becomes(State::kEnded));
  const QString name = "exec:echo ready; echo not so good >&2; printf end; exit 3";
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it ended with exit status 3"));
  EXPECT_EQ(messages_, (QStringList{"Lines go to " + name, name + ": ready", name + ": not so good", name + ": end",
                                    "No lines go to " + name + ": it ended with exit status 3"}));
}

TEST_F(GuestTargetsTest, ACommandThatCannotBeFoundIsToldOf) {
  Add("exec:/no/such/program");
  ASSERT_TRUE(Becomes(State::kEnded));
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it ended with exit status 127"));
}

TEST_F(GuestTargetsTest, ACommandThatShutsItsInputIsNotWrittenToAnyMore) {
  Reach("exec:exec <&-; exec sleep 1000");
  ASSERT_TRUE(Becomes(State::kEnded));
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it stopped reading lines"));
}

// Ctrl+C reaches every program of the terminal; the last lines are sent afterwards.
TEST_F(GuestTargetsTest, ACommandOutlivesWhatInterruptsThisProgram) {
  Reach("exec:kill -INT $$; kill -HUP $$; kill -QUIT $$; cat > '" + Path("lines") + "'");
  Send("1:KBDPR:17:1");
  targets_.Close();
  EXPECT_EQ(Content("lines"), "1:KBDPR:17:1\n1:KBDRL:17:0\n");
}

TEST_F(GuestTargetsTest, ACommandThatDoesNotEndIsEnded) {
  Reach("exec:echo $$ > '" + Path("pid") + "'; exec sleep 1000");
  ASSERT_TRUE(RunEventsUntil([&] { return QFile::exists(Path("pid")) && Content("pid").endsWith('\n'); }));
  const int pid = Content("pid").trimmed().toInt();
  EXPECT_TRUE(QFile::exists(QStringLiteral("/proc/%1").arg(pid)));
  targets_.Close();
  EXPECT_FALSE(QFile::exists(QStringLiteral("/proc/%1").arg(pid)));
}

TEST_F(GuestTargetsTest, LinesASecondAreCounted) {
  Reach("exec:cat > /dev/null");
  Send("1:KBDPR:17:1");
  EXPECT_TRUE(RunEventsUntil([&] {
    Send("1:MOUSEMOVE_REL:1:1");
    return targets_.StatusOf(0).lines_per_second > 0;
  }));
}

}  // namespace
}  // namespace tavi
