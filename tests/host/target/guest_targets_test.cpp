// Lines for guests behind sockets and ports.
#include "host/target/guest_targets.h"

#include <gtest/gtest.h>
#include <thread>

#include <QNetworkInterface>
#include <QTcpServer>

#include "tests/host/target/guest_targets_story.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

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

TEST_F(GuestTargetsTest, TriedAgainWhileItIsConnectedItIsLiftedAndConnectedAnew) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  Send("1:KBDPR:17:1");
  ASSERT_TRUE(RunEventsUntil([&] { return targets_.StatusOf(0).waiting_bytes == 0; }));  // else it would be dropped
  targets_.TryAgain(0);
  EXPECT_TRUE(guest.Gets("1:KBDPR:17:1\n1:KBDRL:17:0\n"));
  EXPECT_TRUE(guest.HasLostItsHost());
  guest.Hang();
  ASSERT_TRUE(Becomes(State::kConnected));
  EXPECT_TRUE(guest.Gets("1:KBDRL:17:0\n"));
}

TEST_F(GuestTargetsTest, ALineThatGuestsWouldCutGoesToNone) {
  SocketGuest guest(Path("guest"));
  Reach("unix:" + Path("guest"));
  SendText("TEXT:" + QByteArray(GuestTargets::kMostLineBytes, 'a'));
  SendText("TEXT:b");
  EXPECT_TRUE(guest.Gets(QByteArray("TEXT:b\0", 7)));
  EXPECT_TRUE(IsTold("A line of 65542 bytes is too long for a guest"));  // 5 + 65536 + the NUL
}

}  // namespace
}  // namespace tavi
