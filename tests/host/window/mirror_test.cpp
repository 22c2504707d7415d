// Lines between instances.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QLocalServer>
#include <QLocalSocket>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "host/mirror/mirror_server.h"
#include "host/mirror/mirror_targets.h"
#include "host/session/live_host.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/mirror_story.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

TEST_F(Mirror, LinesOfALiveDisplayGoToEveryTarget) {
  Listener first("first");
  Listener second("second");
  Reach({"first", "second"});

  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:30:1\n"), LiveHost::kDisplay);
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:31:1\n"), LiveHost::kDisplay + 1);  // not a live one
  taviinputmanager::OnInputRawTextData(QStringLiteral("TEXT:two\nlines\n"));
  const QStringList expected{QStringLiteral("KBDPR:30:1\n"), QStringLiteral("text TEXT:two\nlines\n")};
  EXPECT_TRUE(RunEventsUntil([&] {
    first.Read();
    second.Read();
    return first.lines.size() >= 2 && second.lines.size() >= 2;
  }));
  EXPECT_EQ(first.lines, expected);
  EXPECT_EQ(second.lines, expected);
}

TEST_F(Mirror, ATargetThatGoesAwayIsReportedAndTheOthersGoOn) {
  Listener stays("stays");
  Listener goes("goes");
  MirrorTargets* targets = MirrorTargets::GetInstance();
  Reach({"stays", "goes"});

  ASSERT_TRUE(RunEventsUntil([&] { return goes.HasPeer(); }));
  goes.Leave();
  ASSERT_TRUE(RunEventsUntil([&] { return !lost_.isEmpty(); }));
  EXPECT_EQ(lost_, QStringList({"goes", QStringLiteral("it disconnected")}));
  EXPECT_EQ(targets->Names(), QStringList{"stays"});
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:30:1\n"), LiveHost::kDisplay);
  EXPECT_TRUE(RunEventsUntil([&] {
    stays.Read();
    return stays.lines.size() == 1;
  }));
}

TEST_F(Mirror, ATargetThatNobodyListensAsIsReported) {
  MirrorTargets* targets = MirrorTargets::GetInstance();
  targets->Add("nobody");
  ASSERT_TRUE(RunEventsUntil([&] { return !lost_.isEmpty(); }));
  EXPECT_EQ(lost_, QStringList({"nobody", QStringLiteral("no instance listens under that name")}));
  EXPECT_TRUE(targets->Names().isEmpty());
}

TEST_F(Mirror, LinesOfAnotherInstanceReachTheGuest) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  Say(&other, {false, QStringLiteral("SLOTPRESS:11:11:1:1:640:360\n")});
  Say(&other, {true, QStringLiteral("TEXT:abc\n")});
  ASSERT_TRUE(RunEventsUntil([&] { return said_.size() == 2; }));
  EXPECT_EQ(TakeSaid(), (QStringList{QStringLiteral("1:SLOTPRESS:11:11:1:1:640:360"), QStringLiteral("TEXT:abc")}));
}

TEST_F(Mirror, WhatAnotherInstanceHoldsIsLetGoWhenItGoes) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  Say(&other, {false, QStringLiteral("SLOTPRESS:11:11:1:1:640:360\n")});
  Say(&other, {false, QStringLiteral("SLOTPRESS:12:12:1:1:10:20\n")});
  Say(&other, {false, QStringLiteral("SLOTRELEASE:12\n")});
  Say(&other, {false, QStringLiteral("KBDPR:30:1\n")});
  Say(&other, {false, QStringLiteral("LSTICKAXIS:1000000:0\n")});
  ASSERT_TRUE(RunEventsUntil([&] { return said_.size() == 5; }));
  TakeSaid();
  other.abort();
  ASSERT_TRUE(RunEventsUntil([&] { return said_.size() == 3; }));
  EXPECT_EQ(TakeSaid(), (QStringList{QStringLiteral("1:SLOTRELEASE:11"), QStringLiteral("1:KBDRL:30:0"),
                                     QStringLiteral("1:LSTICKAXIS:0:0")}));
}

TEST_F(Mirror, WhatCameFromAnotherInstanceIsNotPassedOn) {
  Listener third("third");
  Reach({"third"});
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  Say(&other, {false, QStringLiteral("KBDPR:30:1\n")});
  ASSERT_TRUE(RunEventsUntil([&] { return said_.size() == 1; }));
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:31:1\n"), LiveHost::kDisplay);
  ASSERT_TRUE(RunEventsUntil([&] {
    third.Read();
    return !third.lines.isEmpty();
  }));
  EXPECT_EQ(third.lines, QStringList{QStringLiteral("KBDPR:31:1\n")});
}

TEST_F(Mirror, BytesThatAreNoMessageEndTheConnection) {
  MirrorServer server(LiveHost::kDisplay);
  int sources = -1;
  QObject::connect(&server, &MirrorServer::SourcesChanged, &server, [&](int count) { sources = count; });
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  ASSERT_TRUE(RunEventsUntil([&] { return sources == 1; }));
  other.write(QByteArray("\x00\x00\x00\x00\x03odd", 8));  // a string of an odd number of bytes
  other.flush();
  EXPECT_TRUE(RunEventsUntil([&] { return sources == 0; }));
  EXPECT_TRUE(said_.isEmpty());
}

// ---- Names and sockets

TEST_F(Mirror, NamesAreWords) {
  const struct {
    const char* name;
    bool is_name;
  } rows[] = {
      {"left", true}, {"Left-2_b", true}, {"", false},         {"../left", false},    {"/tmp/left", false},
      {"a b", false}, {".", false},       {"keymap.y", false}, {"l\u00E4nge", false}, {"left\n", false},
  };
  for (const auto& row : rows) EXPECT_EQ(MirrorNameProblem(row.name).isEmpty(), row.is_name) << row.name;
  MirrorServer server(LiveHost::kDisplay);
  EXPECT_EQ(server.Listen("keymap.yaml"), MirrorNameProblem("keymap.yaml"));
}

// A program that only checks whether a name is in use is not an instance that sends lines.
TEST_F(Mirror, WhoIsGoneAgainIsNobody) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QVector<int> counts;
  QObject::connect(&server, &MirrorServer::SourcesChanged, &server, [&](int count) { counts += count; });
  MirrorServer second(LiveHost::kDisplay);
  EXPECT_EQ(second.Listen("server"), QString("another instance listens as server"));
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  ASSERT_TRUE(RunEventsUntil([&] { return !counts.isEmpty(); }));
  EXPECT_EQ(counts, QVector<int>{1});
}

// ---- Limits

TEST_F(Mirror, ALineThatIsTooLongEndsTheConnection) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  int sources = 0;
  QObject::connect(&server, &MirrorServer::SourcesChanged, &server, [&](int count) { sources = count; });
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  const QString longest = "TEXT:" + QString(kTooLongMirrorLine - 7, 'a') + "\n";  // one less than the limit
  Say(&other, {true, longest});
  ASSERT_TRUE(RunEventsUntil([&] { return said_.size() == 1; }));
  EXPECT_EQ(TakeSaid(), QStringList(longest.chopped(1)));
  Say(&other, {true, "TEXT:" + QString(kTooLongMirrorLine - 6, 'a') + "\n"});
  EXPECT_TRUE(RunEventsUntil([&] { return sources == 0; }));
  EXPECT_TRUE(said_.isEmpty());
}

// The length alone is enough: a sender that announces gigabytes is disconnected at once.
TEST(MirrorMessageTest, IsReadByItsLength) {
  QByteArray bytes;
  QDataStream writer(&bytes, QIODevice::WriteOnly);
  writer << MirrorMessage{true, "TEXT:a\n"};
  for (int size = 0; size < bytes.size(); ++size) {
    QByteArray part = bytes.left(size);
    QBuffer device(&part);
    device.open(QIODevice::ReadOnly);
    MirrorMessage message;
    EXPECT_EQ(ReadMirrorMessage(&device, &message), MirrorReading::kIncomplete) << size;
    EXPECT_EQ(device.pos(), 0) << size;
  }
  QBuffer device(&bytes);
  device.open(QIODevice::ReadOnly);
  MirrorMessage message;
  EXPECT_EQ(ReadMirrorMessage(&device, &message), MirrorReading::kMessage);
  EXPECT_EQ(message.line, QString("TEXT:a\n"));
  EXPECT_TRUE(message.is_text);

  QByteArray gigabytes("\1\x7F\xFF\xFF\xFE", 5);
  QBuffer endless(&gigabytes);
  endless.open(QIODevice::ReadOnly);
  EXPECT_EQ(ReadMirrorMessage(&endless, &message), MirrorReading::kBroken);
}

TEST_F(Mirror, ATextThatIsTooLongIsToldAndNotSent) {
  Listener listener("first");
  MirrorTargets* targets = MirrorTargets::GetInstance();
  int too_long = 0;
  QObject::connect(targets, &MirrorTargets::TooLong, targets, [&](int characters) { too_long = characters; });
  Reach({"first"});
  taviinputmanager::OnInputRawTextData("TEXT:" + QString(70000, 'a') + "\n");
  taviinputmanager::OnInputRawTextData("TEXT:b\n");
  EXPECT_TRUE(RunEventsUntil([&] {
    listener.Read();
    return !listener.lines.isEmpty();
  }));
  EXPECT_EQ(listener.lines, QStringList("text TEXT:b\n"));
  EXPECT_EQ(too_long, 70006);
}

TEST_F(Mirror, ANameInUseIsRefused) {
  MirrorServer first(LiveHost::kDisplay);
  ASSERT_EQ(first.Listen("name"), QString());
  MirrorServer second(LiveHost::kDisplay);
  EXPECT_NE(second.Listen("name"), QString());
}

}  // namespace
}  // namespace tavi
