// Lines carried between instances. The other instance is a bare socket here, which says and hears what one would.
#include <functional>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include "host/window/mirror_message.h"
#include "host/window/mirror_server.h"
#include "host/window/mirror_targets.h"
#include "host/window/window_host.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {
namespace {

constexpr int kLimitMs = 20000;  // never reached when all is well

class Mirror : public testing::Test {
 protected:
  Mirror() : application_(argument_count_, arguments_) {
    WindowHost::GetInstance()->Start(nullptr);
    QObject::connect(WindowHost::GetInstance(), &WindowHost::EntryAdded, &context_, [this](const TimelineEntry& entry) {
      if (entry.source != TimelineEntry::Source::kCallback) said_.append(entry.text);
    });
  }

  // A name that no other test uses.
  QString Name(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  static bool Until(const std::function<bool()>& done) {
    const QDeadlineTimer limit(kLimitMs);
    while (!done() && !limit.hasExpired()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    return done();
  }

  static void Say(QLocalSocket* socket, const MirrorMessage& message) {
    QDataStream stream(socket);
    stream.setVersion(kMirrorStreamVersion);
    stream << message;
    socket->flush();
  }

  QStringList TakeSaid() {
    const QStringList said = said_;
    said_.clear();
    return said;
  }

  QTemporaryDir folder_;
  QStringList said_;  // lines for this instance's guest

 private:
  int argument_count_ = 0;
  char* arguments_[1] = {nullptr};
  QApplication application_;
  QObject context_;
};

// Another instance that listens.
class Listener {
 public:
  explicit Listener(const QString& name) { server_.listen(name); }

  void Read() {
    if (!socket_) socket_ = server_.nextPendingConnection();
    if (!socket_) return;
    QDataStream stream(socket_);
    stream.setVersion(kMirrorStreamVersion);
    while (true) {
      MirrorMessage message;
      stream.startTransaction();
      stream >> message;
      if (!stream.commitTransaction()) return;
      lines.append((message.is_text ? QStringLiteral("text ") : QString()) + message.line);
    }
  }
  bool HasPeer() {
    Read();
    return socket_ != nullptr;
  }
  void Leave() {
    socket_->abort();
    server_.close();
  }

  QStringList lines;

 private:
  QLocalServer server_;
  QLocalSocket* socket_ = nullptr;  // the server's
};

TEST_F(Mirror, LinesOfALiveDisplayGoToEveryTarget) {
  Listener first(Name("first"));
  Listener second(Name("second"));
  MirrorTargets* targets = MirrorTargets::GetInstance();
  int reached = 0;
  QObject::connect(targets, &MirrorTargets::Reached, targets, [&] { ++reached; });
  targets->Add(Name("first"));
  targets->Add(Name("second"));
  ASSERT_TRUE(Until([&] { return reached == 2; }));

  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:30:1\n"), WindowHost::kDisplay);
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:31:1\n"), WindowHost::kDisplay + 1);  // not a live one
  taviinputmanager::OnInputRawTextData(QStringLiteral("TEXT:two\nlines\n"));
  const QStringList expected{QStringLiteral("KBDPR:30:1\n"), QStringLiteral("text TEXT:two\nlines\n")};
  EXPECT_TRUE(Until([&] {
    first.Read();
    second.Read();
    return first.lines.size() >= 2 && second.lines.size() >= 2;
  }));
  EXPECT_EQ(first.lines, expected);
  EXPECT_EQ(second.lines, expected);
}

TEST_F(Mirror, ATargetThatGoesAwayIsReportedAndTheOthersGoOn) {
  Listener stays(Name("stays"));
  Listener goes(Name("goes"));
  MirrorTargets* targets = MirrorTargets::GetInstance();
  int reached = 0;
  QStringList lost;
  QObject::connect(targets, &MirrorTargets::Reached, targets, [&] { ++reached; });
  QObject::connect(targets, &MirrorTargets::Lost, targets, [&](const QString& name, const QString& problem) {
    lost.append({name, problem});
  });
  targets->Add(Name("stays"));
  targets->Add(Name("goes"));
  ASSERT_TRUE(Until([&] { return reached == 2; }));

  ASSERT_TRUE(Until([&] { return goes.HasPeer(); }));
  goes.Leave();
  ASSERT_TRUE(Until([&] { return !lost.isEmpty(); }));
  EXPECT_EQ(lost, QStringList({Name("goes"), QStringLiteral("it went away")}));
  EXPECT_EQ(targets->Names(), QStringList{Name("stays")});
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:30:1\n"), WindowHost::kDisplay);
  EXPECT_TRUE(Until([&] {
    stays.Read();
    return stays.lines.size() == 1;
  }));
}

TEST_F(Mirror, ATargetThatNobodyListensAsIsReported) {
  MirrorTargets* targets = MirrorTargets::GetInstance();
  QStringList lost;
  QObject::connect(targets, &MirrorTargets::Lost, targets, [&](const QString& name, const QString& problem) {
    lost.append({name, problem});
  });
  targets->Add(Name("nobody"));
  ASSERT_TRUE(Until([&] { return !lost.isEmpty(); }));
  EXPECT_EQ(lost, QStringList({Name("nobody"), QStringLiteral("no instance listens as that")}));
  EXPECT_TRUE(targets->Names().isEmpty());
}

TEST_F(Mirror, LinesOfAnotherInstanceReachTheGuest) {
  MirrorServer server(WindowHost::kDisplay);
  ASSERT_EQ(server.Listen(Name("server")), QString());
  QLocalSocket other;
  other.connectToServer(Name("server"));
  Say(&other, {false, QStringLiteral("SLOTPRESS:11:11:1:1:640:360\n")});
  Say(&other, {true, QStringLiteral("TEXT:abc\n")});
  ASSERT_TRUE(Until([&] { return said_.size() == 2; }));
  EXPECT_EQ(TakeSaid(), (QStringList{QStringLiteral("1:SLOTPRESS:11:11:1:1:640:360"), QStringLiteral("TEXT:abc")}));
}

TEST_F(Mirror, WhatAnotherInstanceHoldsIsLetGoWhenItGoes) {
  MirrorServer server(WindowHost::kDisplay);
  ASSERT_EQ(server.Listen(Name("server")), QString());
  QLocalSocket other;
  other.connectToServer(Name("server"));
  Say(&other, {false, QStringLiteral("SLOTPRESS:11:11:1:1:640:360\n")});
  Say(&other, {false, QStringLiteral("SLOTPRESS:12:12:1:1:10:20\n")});
  Say(&other, {false, QStringLiteral("SLOTRELEASE:12\n")});
  Say(&other, {false, QStringLiteral("KBDPR:30:1\n")});
  Say(&other, {false, QStringLiteral("LSTICKAXIS:1000000:0\n")});
  ASSERT_TRUE(Until([&] { return said_.size() == 5; }));
  TakeSaid();
  other.abort();
  ASSERT_TRUE(Until([&] { return said_.size() == 3; }));
  EXPECT_EQ(TakeSaid(), (QStringList{QStringLiteral("1:SLOTRELEASE:11"), QStringLiteral("1:KBDRL:30:0"),
                                     QStringLiteral("1:LSTICKAXIS:0:0")}));
}

TEST_F(Mirror, WhatCameFromAnotherInstanceIsNotPassedOn) {
  Listener third(Name("third"));
  MirrorTargets* targets = MirrorTargets::GetInstance();
  int reached = 0;
  QObject::connect(targets, &MirrorTargets::Reached, targets, [&] { ++reached; });
  targets->Add(Name("third"));
  MirrorServer server(WindowHost::kDisplay);
  ASSERT_EQ(server.Listen(Name("server")), QString());
  ASSERT_TRUE(Until([&] { return reached == 1; }));

  QLocalSocket other;
  other.connectToServer(Name("server"));
  Say(&other, {false, QStringLiteral("KBDPR:30:1\n")});
  ASSERT_TRUE(Until([&] { return said_.size() == 1; }));
  taviinputmanager::OnInputRawEventData(QStringLiteral("KBDPR:31:1\n"), WindowHost::kDisplay);
  ASSERT_TRUE(Until([&] {
    third.Read();
    return !third.lines.isEmpty();
  }));
  EXPECT_EQ(third.lines, QStringList{QStringLiteral("KBDPR:31:1\n")});
}

TEST_F(Mirror, BytesThatAreNoMessageEndTheConnection) {
  MirrorServer server(WindowHost::kDisplay);
  int sources = -1;
  QObject::connect(&server, &MirrorServer::SourcesChanged, &server, [&](int count) { sources = count; });
  ASSERT_EQ(server.Listen(Name("server")), QString());
  QLocalSocket other;
  other.connectToServer(Name("server"));
  ASSERT_TRUE(Until([&] { return sources == 1; }));
  other.write(QByteArray("\x00\x00\x00\x00\x03odd", 8));  // a string of an odd number of bytes
  other.flush();
  EXPECT_TRUE(Until([&] { return sources == 0; }));
  EXPECT_TRUE(said_.isEmpty());
}

TEST_F(Mirror, ANameInUseIsRefused) {
  MirrorServer first(WindowHost::kDisplay);
  ASSERT_EQ(first.Listen(Name("name")), QString());
  MirrorServer second(WindowHost::kDisplay);
  EXPECT_NE(second.Listen(Name("name")), QString());
}

}  // namespace
}  // namespace tavi
