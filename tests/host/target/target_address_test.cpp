#include "host/target/target_address.h"

#include <gtest/gtest.h>

#include <QDir>

#include "host/target/target_status.h"

namespace tavi {
namespace {

using Kind = TargetAddress::Kind;
using State = TargetStatus::State;

TEST(TargetAddress, IsWhatAPersonWrites) {
  const QString file = QDir::tempPath() + "/guest";
  const struct {
    QString text;
    Kind kind;
    QString place;
    int port;
  } rows[] = {
      {"unix:" + file, Kind::kSocketFile, file, 0},
      {"unix:guest:1", Kind::kSocketFile, QDir::currentPath() + "/guest:1", 0},
      {"tcp:localhost:7000", Kind::kTcp, "localhost", 7000},
      {"tcp:127.0.0.9:1", Kind::kTcp, "127.0.0.9", 1},
      {"tcp:[::1]:65535", Kind::kTcp, "::1", 65535},
      {"tcp:localhost: +7000\u00A0", Kind::kTcp, "localhost", 7000},  // with blanks, as in any number
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text.toStdString());
    const ParsedTarget parsed = ParseTarget(row.text, false);
    EXPECT_EQ(parsed.problem, QString());
    EXPECT_EQ(parsed.address.kind, row.kind);
    EXPECT_EQ(parsed.address.text, row.text);
    EXPECT_EQ(parsed.address.place, row.place);
    EXPECT_EQ(parsed.address.port, row.port);
    EXPECT_FALSE(parsed.address.may_be_remote);
  }
}

TEST(TargetAddress, IsToldWhatIsWrongWithIt) {
  const struct {
    const char* text;
    const char* problem;
  } rows[] = {
      {"", "a guest is exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput, not \"\""},
      {"uinput:1", "a guest is exec:COMMAND, unix:PATH, tcp:HOST:PORT or uinput, not \"uinput:1\""},
      {"exec: ", "exec: needs a command"},
      {"unix:", "unix: needs a path"},
      {"tcp:", "tcp: needs HOST:PORT such as localhost:7000, not \"\""},
      {"tcp:7000", "tcp: needs HOST:PORT such as localhost:7000, not \"7000\""},
      {"tcp:localhost:", "tcp: needs HOST:PORT such as localhost:7000, not \"localhost:\""},
      {"tcp:localhost:0", "tcp: needs HOST:PORT such as localhost:7000, not \"localhost:0\""},
      {"tcp:localhost:-1", "tcp: needs HOST:PORT such as localhost:7000, not \"localhost:-1\""},
      {"tcp:localhost:65536", "tcp: needs HOST:PORT such as localhost:7000, not \"localhost:65536\""},
      {"tcp:::1:7000", "tcp: needs HOST:PORT such as localhost:7000, not \"::1:7000\""},
      {"tcp:[]:7000", "tcp: needs HOST:PORT such as localhost:7000, not \"[]:7000\""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.text);
    EXPECT_EQ(ParseTarget(row.text, true).problem, QString(row.problem));
  }
}

TEST(TargetAddress, AnotherMachineIsOneThatWasAllowed) {
  for (const char* host : {"192.168.1.5", "example.com", "[fe80::1]", "0.0.0.0", "localhost.example.com"}) {
    SCOPED_TRACE(host);
    const QString text = QStringLiteral("tcp:%1:7000").arg(host);
    EXPECT_TRUE(ParseTarget(text, false).problem.contains(" is another machine, "));
    const ParsedTarget allowed = ParseTarget(text, true);
    EXPECT_EQ(allowed.problem, QString());
    EXPECT_TRUE(allowed.address.may_be_remote);
  }
}

TEST(TargetStatus, IsToldInWords) {
  const struct {
    TargetStatus status;
    const char* text;
  } rows[] = {
      {{"", State::kOff, {}, 0, 0, 0}, "off"},
      {{"", State::kConnecting, {}, 0, 0, 0}, "connecting"},
      {{"", State::kConnected, {}, 0, 0, 0}, "connected, 0 lines/s"},
      {{"", State::kConnected, {}, 0, 1, 1023}, "connected, 1 line/s, 1023 bytes queued"},
      {{"", State::kConnected, {}, 0, 60, 2048}, "connected, 60 lines/s, 2 kB queued"},
      {{"", State::kLagging, {}, 0, 0, 30}, "reads too slowly: lines are dropped while 30 bytes are queued"},
      {{"", State::kFailed, "nobody listens there", 1000, 0, 0}, "nobody listens there; next try in 1 s"},
      {{"", State::kEnded, "it disconnected", 1001, 0, 0}, "it disconnected; next try in 2 s"},
  };
  for (const auto& row : rows) EXPECT_EQ(DescribeStatus(row.status), QString(row.text));
}

}  // namespace
}  // namespace tavi
