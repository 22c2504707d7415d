// Lines for real commands, sockets and ports.
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QNetworkInterface>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

#include "host/target/guest_targets.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using State = TargetStatus::State;
using taviinputmanager::RunEventsUntil;

class GuestTargetsTest : public testing::Test {
 protected:
  GuestTargetsTest() {
    QObject::connect(&targets_, &GuestTargets::Message, &targets_,
                     [this](const QString& text) { messages_.append(text); });
  }
  ~GuestTargetsTest() override { targets_.Close(); }

  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }
  QByteArray Content(const char* name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void Add(const QString& text) {
    const ParsedTarget parsed = ParseTarget(text, false);
    ASSERT_EQ(parsed.problem, QString());
    targets_.Add(parsed.address);
  }
  void Reach(const QString& text) {
    Add(text);
    const int target = targets_.Count() - 1;
    ASSERT_TRUE(RunEventsUntil([&] { return StateOf(target) == State::kConnected; }));
  }

  State StateOf(int target = 0) const { return targets_.StatusOf(target).state; }
  bool Becomes(State state, int target = 0) {
    return RunEventsUntil([&] { return StateOf(target) == state; });
  }
  bool IsTold(const QString& text) {
    return RunEventsUntil([&] { return messages_.contains(text); });
  }

  void Send(const QByteArray& line) { targets_.Send((line + '\n').constData(), line.size() + 1); }
  // The NUL after the text counts.
  void SendText(const QByteArray& text) { targets_.Send(text.constData(), text.size() + 1); }

 private:
  ApplicationObject<QCoreApplication> application_;

 protected:
  QTemporaryDir folder_;
  GuestTargets targets_;
  QStringList messages_;
};

// A guest behind a socket file.
class SocketGuest {
 public:
  explicit SocketGuest(const QString& path) { EXPECT_TRUE(server_.listen(path)); }

  // Whether these bytes, and no others, came on the current connection.
  bool Gets(const QByteArray& bytes) {
    const bool is_there = RunEventsUntil([&] {
      Read();
      return got_.size() >= bytes.size();
    });
    EXPECT_EQ(got_, bytes);
    return is_there && got_ == bytes;
  }
  void Hang() {
    ASSERT_TRUE(RunEventsUntil([&] { return Socket() != nullptr; }));
    socket_->abort();
    socket_ = nullptr;
    got_.clear();
  }
  bool HasLostItsHost() {
    return RunEventsUntil([&] {
      Read();
      return Socket() && socket_->state() == QLocalSocket::UnconnectedState;
    });
  }

 private:
  QLocalSocket* Socket() {
    if (!socket_) socket_ = server_.nextPendingConnection();
    return socket_;
  }
  void Read() {
    if (Socket()) got_ += socket_->readAll();
  }

  QLocalServer server_;
  QLocalSocket* socket_ = nullptr;  // owned by the server
  QByteArray got_;
};

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

TEST_F(GuestTargetsTest, EventsAndTextsAreOneStreamInTheOrderOfTheCalls) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:KBDPR:30:1");
  SendText("TEXT:two\nlines");
  Send("1:KBDRL:30:0");
  SendText("TEXT_CONTROL:ENTER");
  EXPECT_TRUE(
      guest.Gets(QByteArray("1:KBDPR:30:1\nTEXT:two\nlines\0"
                            "1:KBDRL:30:0\nTEXT_CONTROL:ENTER\0",
                            60)));
}

TEST_F(GuestTargetsTest, LinesOfAnotherThreadKeepTheirPlace) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  QByteArray expected;
  std::thread replay([&] {
    for (int i = 0; i < 1000; ++i) {
      const QByteArray line = "1:MOUSEMOVE_REL:" + QByteArray::number(i) + ":0";
      expected += line + '\n';
      Send(line);
    }
  });
  replay.join();
  Send("1:SLOTRELEASE:18");  // waits after them, though it could be sent at once
  EXPECT_TRUE(guest.Gets(expected + "1:SLOTRELEASE:18\n"));
}

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

TEST_F(GuestTargetsTest, LiftingAllLeavesAloneWhatIsUp) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:SLOTPRESS:2:2:1:1:230:518");
  targets_.LiftAll();
  targets_.LiftAll();
  Send("1:SLOTPRESS:2:2:1:1:230:489");  // still held: stays up
  Send("1:SLOTRELEASE:2");
  Send("1:SLOTPRESS:2:2:1:1:230:518");
  EXPECT_TRUE(
      guest.Gets("1:SLOTPRESS:2:2:1:1:230:518\n1:SLOTRELEASE:2\n1:SLOTRELEASE:2\n"
                 "1:SLOTPRESS:2:2:1:1:230:518\n"));
}

TEST_F(GuestTargetsTest, ATargetThatDiesInAGestureGetsNoneOfItsRest) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:KBDPR:17:1");
  Send("1:KBDRL:17:0");
  Send("1:SLOTPRESS:11:11:1:1:100:100");
  guest.Hang();
  ASSERT_TRUE(Becomes(State::kEnded));
  EXPECT_TRUE(IsTold("No lines go to unix:" + Path("guest") + ": it disconnected"));
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it disconnected"));
  Send("1:SLOTPRESS:11:11:1:1:110:100");
  Send("1:SLOTPRESS:12:12:1:1:500:500");
  targets_.TryAgain(0);
  ASSERT_TRUE(Becomes(State::kConnected));
  Send("1:SLOTPRESS:11:11:1:1:120:100");
  Send("1:SLOTPRESS:12:12:1:1:510:500");
  Send("1:SLOTRELEASE:11");
  Send("1:SLOTPRESS:11:11:1:1:100:100");
  // First the release of everything that was ever down: nobody knows what was lost with the connection.
  EXPECT_TRUE(guest.Gets("1:SLOTRELEASE:11\n1:KBDRL:17:0\n1:SLOTRELEASE:11\n1:SLOTPRESS:11:11:1:1:100:100\n"));
}

TEST_F(GuestTargetsTest, ATargetThatComesLaterIsFoundWithoutBeingAskedFor) {
  Add("unix:" + Path("guest"));
  ASSERT_TRUE(Becomes(State::kFailed));
  EXPECT_TRUE(targets_.HaveAllAnswered());
  const TargetStatus status = targets_.StatusOf(0);
  EXPECT_EQ(status.reason, QString("there is no such socket"));
  EXPECT_GT(status.retry_ms, 0);
  EXPECT_LE(status.retry_ms, 1000);
  SocketGuest guest(Path("guest"));
  ASSERT_TRUE(Becomes(State::kConnected));  // after a second
  Send("1:SLOTRELEASEALL");
  EXPECT_TRUE(guest.Gets("1:SLOTRELEASEALL\n"));
  EXPECT_EQ(messages_, (QStringList{"No lines go to unix:" + Path("guest") + ": there is no such socket",
                                    "Lines go to unix:" + Path("guest")}));
}

TEST_F(GuestTargetsTest, ATargetThatRefusesIsToldOfAndKeepsNobodyWaiting) {
  quint16 port = 0;
  {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    port = server.serverPort();
  }
  SocketGuest other(Path("other"));
  Add(QStringLiteral("tcp:127.0.0.1:%1").arg(port));
  ASSERT_TRUE(Becomes(State::kFailed));
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it refused the connection"));
  Reach("unix:" + Path("other"));
  Send("1:SLOTRELEASEALL");
  EXPECT_TRUE(other.Gets("1:SLOTRELEASEALL\n"));
}

// A name may resolve to another machine, and so may an address that belongs to this machine's network.
TEST_F(GuestTargetsTest, WhatAnswersOnAnotherMachineGetsNothingUnlessThatIsAllowed) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::AnyIPv4));
  TargetAddress address = ParseTarget(QStringLiteral("tcp:localhost:%1").arg(server.serverPort()), false).address;
  address.place.clear();
  for (const QHostAddress& own : QNetworkInterface::allAddresses()) {
    if (!own.isLoopback() && own.protocol() == QAbstractSocket::IPv4Protocol) address.place = own.toString();
  }
  if (address.place.isEmpty()) GTEST_SKIP() << "this machine is in no network";
  targets_.Add(address);
  ASSERT_TRUE(Becomes(State::kFailed));
  EXPECT_EQ(targets_.StatusOf(0).reason, QString("it is another machine, which needs --allow-remote"));
  address.may_be_remote = true;
  targets_.Add(address);
  EXPECT_TRUE(Becomes(State::kConnected, 1));
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

TEST_F(GuestTargetsTest, SwitchedOffItIsLiftedAndLeft) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:SLOTPRESS:2:2:1:1:230:518");
  targets_.Switch(0, false);
  EXPECT_EQ(StateOf(), State::kOff);
  Send("1:SLOTPRESS:2:2:1:1:230:489");
  EXPECT_TRUE(guest.Gets("1:SLOTPRESS:2:2:1:1:230:518\n1:SLOTRELEASE:2\n"));
  EXPECT_TRUE(guest.HasLostItsHost());
  guest.Hang();
  EXPECT_EQ(StateOf(), State::kOff);
  targets_.Switch(0, true);
  ASSERT_TRUE(Becomes(State::kConnected));
  Send("1:SLOTPRESS:2:2:1:1:230:470");
  EXPECT_TRUE(guest.Gets("1:SLOTRELEASE:2\n"));
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

TEST_F(GuestTargetsTest, TriedAgainWhileItIsConnectedItIsLiftedAndConnectedAnew) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:KBDPR:17:1");
  targets_.TryAgain(0);
  EXPECT_TRUE(guest.Gets("1:KBDPR:17:1\n1:KBDRL:17:0\n"));
  EXPECT_TRUE(guest.HasLostItsHost());
  guest.Hang();
  ASSERT_TRUE(Becomes(State::kConnected));
  EXPECT_TRUE(guest.Gets("1:KBDRL:17:0\n"));
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

TEST_F(GuestTargetsTest, ALineThatGuestsWouldCutGoesToNone) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  SendText("TEXT:" + QByteArray(GuestTargets::kMostLineBytes, 'a'));
  SendText("TEXT:b");
  EXPECT_TRUE(guest.Gets(QByteArray("TEXT:b\0", 7)));
  EXPECT_TRUE(IsTold("A line of 65542 bytes is too long for a guest"));  // 5 + 65536 + the NUL
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
