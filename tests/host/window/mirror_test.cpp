// Lines between instances. The other instance is a bare socket here, which sends and receives the same.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSocketNotifier>
#include <QTemporaryDir>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "host/mirror/mirror_server.h"
#include "host/mirror/mirror_targets.h"
#include "host/session/live_host.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/support/full_disk.h"
#include "tests/support/run_until.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

class Mirror : public testing::Test {
 protected:
  Mirror() : application_(argument_count_, arguments_) {
    const MirrorTargets* targets = MirrorTargets::GetInstance();
    QObject::connect(targets, &MirrorTargets::Reached, &context_, [this] { ++reached_; });
    QObject::connect(targets, &MirrorTargets::Lost, &context_, [this](const QString& name, const QString& problem) {
      lost_.append({name, problem});
    });
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));  // no other test uses these names
    LiveHost::GetInstance()->Start(nullptr);
    QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &context_, [this](const TimelineEntry& entry) {
      if (entry.source != TimelineEntry::Source::kCallback) said_.append(entry.text);
    });
  }

  // A socket file that was left by its program.
  static void LeaveSocket(const QString& name) {
    sockaddr_un address{};
    const int file = BindTo(name, &address);
    EXPECT_EQ(listen(file, 1), 0);
    close(file);
  }
  // A Unix socket bound to the name's address.
  static int BindTo(const QString& name, sockaddr_un* address) {
    const int file = Unbound(name, address);
    EXPECT_EQ(bind(file, reinterpret_cast<const sockaddr*>(address), sizeof(*address)), 0);
    return file;
  }
  static int Unbound(const QString& name, sockaddr_un* address) {
    *address = {};
    address->sun_family = AF_UNIX;
    qstrncpy(address->sun_path, QFile::encodeName(MirrorAddressOf(name)).constData(), sizeof(address->sun_path));
    return socket(AF_UNIX, SOCK_STREAM, 0);
  }

  // Sends lines to the instances that listen under these names.
  void Reach(const QStringList& names) {
    for (const QString& name : names) MirrorTargets::GetInstance()->Add(name);
    ASSERT_TRUE(RunEventsUntil([&] { return reached_ == names.size(); }));
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
  int reached_ = 0;   // instances that get lines
  QStringList lost_;  // names of those that do not, each with the reason

 private:
  int argument_count_ = 0;
  char* arguments_[1] = {nullptr};
  QApplication application_;
  QObject context_;
};

// Another instance that listens.
class Listener {
 public:
  explicit Listener(const QString& name) { server_.listen(MirrorAddressOf(name)); }

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
  QLocalSocket* socket_ = nullptr;  // owned by the server
};

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

TEST_F(Mirror, SocketsLieInAFolderOfTheUsersOwn) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  struct stat folder {};
  ASSERT_EQ(stat(QFile::encodeName(folder_.filePath("tavi")).constData(), &folder), 0);
  EXPECT_EQ(folder.st_mode & 0777U, 0700U);
  EXPECT_TRUE(QFileInfo::exists(folder_.filePath("tavi/server")));
}

TEST_F(Mirror, AFolderThatOthersMayEnterIsClosed) {
  ASSERT_EQ(mkdir(QFile::encodeName(folder_.filePath("tavi")).constData(), 0777), 0);
  ASSERT_EQ(chmod(QFile::encodeName(folder_.filePath("tavi")).constData(), 0777), 0);
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  struct stat folder {};
  ASSERT_EQ(stat(QFile::encodeName(folder_.filePath("tavi")).constData(), &folder), 0);
  EXPECT_EQ(folder.st_mode & 0777U, 0700U);
}

TEST_F(Mirror, TheSocketGoesWithItsServer) {
  {
    MirrorServer server(LiveHost::kDisplay);
    ASSERT_EQ(server.Listen("server"), QString());
  }
  EXPECT_FALSE(QFileInfo::exists(MirrorAddressOf("server")));
}

TEST_F(Mirror, WhatACrashedInstanceLeftIsReplaced) {
  LeaveSocket("server");
  ASSERT_TRUE(QFileInfo::exists(MirrorAddressOf("server")));
  MirrorServer server(LiveHost::kDisplay);
  EXPECT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  EXPECT_TRUE(other.waitForConnected());
}

TEST_F(Mirror, WhatIsNoSocketStays) {
  QFile file(MirrorAddressOf("server"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("dear");
  file.close();
  {
    MirrorServer server(LiveHost::kDisplay);
    EXPECT_TRUE(server.Listen("server").endsWith("is not a socket of this user"));
  }
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), QByteArray("dear"));
}

TEST_F(Mirror, ASocketOfAnotherUserStays) {
  if (!IsRoot()) GTEST_SKIP() << "only root has files of others";
  LeaveSocket("server");
  const QByteArray address = QFile::encodeName(MirrorAddressOf("server"));
  ASSERT_EQ(chown(address.constData(), kNobody, kNobody), 0);
  MirrorServer server(LiveHost::kDisplay);
  EXPECT_TRUE(server.Listen("server").endsWith("is not a socket of this user"));
  EXPECT_TRUE(QFileInfo::exists(MirrorAddressOf("server")));
}

TEST_F(Mirror, AnotherUserIsNotHeard) {
  if (!IsRoot()) GTEST_SKIP() << "only root is somebody else for a while";
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  sockaddr_un address{};
  const int other = Unbound("server", &address);
  for (const QString& open : {folder_.path(), folder_.filePath("tavi"), MirrorAddressOf("server")}) {
    ASSERT_EQ(chmod(QFile::encodeName(open).constData(), 0777), 0);
  }
  {
    const AsNobody nobody;
    ASSERT_EQ(::connect(other, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  }
  char byte = 0;
  EXPECT_TRUE(RunEventsUntil([&] { return recv(other, &byte, 1, MSG_DONTWAIT) == 0; }));  // it is disconnected
  close(other);
}

TEST_F(Mirror, NothingGoesToAnotherUser) {
  if (!IsRoot()) GTEST_SKIP() << "only root is somebody else for a while";
  sockaddr_un address{};
  const int other = BindTo("other", &address);
  {
    const AsNobody nobody;  // the caller of listen is the owner of the socket
    ASSERT_EQ(listen(other, 1), 0);
  }
  MirrorTargets* targets = MirrorTargets::GetInstance();
  targets->Add("other");
  ASSERT_TRUE(RunEventsUntil([&] { return !lost_.isEmpty(); }));
  EXPECT_EQ(lost_, QStringList({"other", "another user listens under that name"}));
  close(other);
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

TEST_F(Mirror, ATargetThatReadsNothingIsDropped) {
  sockaddr_un address{};
  const int silent = BindTo("silent", &address);
  ASSERT_EQ(listen(silent, 1), 0);
  MirrorTargets* targets = MirrorTargets::GetInstance();
  Reach({"silent"});
  const QString text = "TEXT:" + QString(30000, 'a') + "\n";
  // 60 kB each: the system buffers some hundred kB, this instance one MB.
  for (int i = 0; i < 100 && lost_.isEmpty(); ++i) {
    taviinputmanager::OnInputRawTextData(text);
    QCoreApplication::processEvents();
  }
  EXPECT_EQ(lost_, QStringList({"silent", "it stopped reading lines"}));
  EXPECT_TRUE(targets->Names().isEmpty());
  close(silent);
}

TEST_F(Mirror, WithoutRoomForAConnectionItIsTakenLater) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  int sources = 0;
  QObject::connect(&server, &MirrorServer::SourcesChanged, &server, [&](int count) { sources = count; });
  sockaddr_un address{};
  const int other = Unbound("server", &address);
  // The sanitizer looks up each type once, through a pipe of its own.
  QSocketNotifier(other, QSocketNotifier::Read).setEnabled(false);
  rlimit before{};
  getrlimit(RLIMIT_NOFILE, &before);
  const rlimit few{static_cast<rlim_t>(other) + 1, before.rlim_max};  // the next new file has a higher number
  setrlimit(RLIMIT_NOFILE, &few);
  QVector<int> gaps;  // below it
  for (int file = dup(other); file >= 0; file = dup(other)) gaps += file;
  ASSERT_EQ(::connect(other, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(sources, 0);
  setrlimit(RLIMIT_NOFILE, &before);
  for (const int file : gaps) close(file);
  EXPECT_TRUE(RunEventsUntil([&] { return sources == 1; }));
  close(other);
}

TEST_F(Mirror, ANameInUseIsRefused) {
  MirrorServer first(LiveHost::kDisplay);
  ASSERT_EQ(first.Listen("name"), QString());
  MirrorServer second(LiveHost::kDisplay);
  EXPECT_NE(second.Listen("name"), QString());
}

}  // namespace
}  // namespace tavi
