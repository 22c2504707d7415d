// Lines between instances, over Unix sockets.
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QSocketNotifier>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_server.h"
#include "host/mirror/mirror_targets.h"
#include "host/session/live_host.h"
#include "taviinputmanager/taviinputmanager.h"
#include "tests/host/window/mirror_story.h"
#include "tests/support/run_until.h"
#include "tests/support/system/other_user.h"

namespace tavi {
namespace {

using taviinputmanager::RunEventsUntil;

int Unbound(const QString& name, sockaddr_un* address) {
  *address = {};
  address->sun_family = AF_UNIX;
  qstrncpy(address->sun_path, QFile::encodeName(MirrorAddressOf(name)).constData(), sizeof(address->sun_path));
  return socket(AF_UNIX, SOCK_STREAM, 0);
}

// A Unix socket bound to the name's address.
int BindTo(const QString& name, sockaddr_un* address) {
  const int file = Unbound(name, address);
  EXPECT_EQ(bind(file, reinterpret_cast<const sockaddr*>(address), sizeof(*address)), 0);
  return file;
}

// A socket file that was left by its program.
void LeaveSocket(const QString& name) {
  sockaddr_un address{};
  const int file = BindTo(name, &address);
  EXPECT_EQ(listen(file, 1), 0);
  close(file);
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

TEST_F(Mirror, AtTheEndTheLastLinesAreSentWithoutTheEventLoop) {
  sockaddr_un address{};
  const int listening = BindTo("last", &address);
  ASSERT_EQ(listen(listening, 1), 0);
  Reach({"last"});
  const int peer = accept(listening, nullptr, nullptr);
  char bytes[100];
  taviinputmanager::OnInputRawEventData("KBDRL:30:0\n", LiveHost::kDisplay);
  EXPECT_EQ(recv(peer, bytes, sizeof bytes, MSG_DONTWAIT), -1);  // not yet
  MirrorTargets::GetInstance()->Finish();
  EXPECT_GT(recv(peer, bytes, sizeof bytes, MSG_DONTWAIT), 0);
  close(peer);
  close(listening);
}

TEST_F(Mirror, ATargetThatReadsNothingDelaysTheEndByASecondAtMost) {
  sockaddr_un address{};
  const int silent = BindTo("silent", &address);
  ASSERT_EQ(listen(silent, 1), 0);
  MirrorTargets* targets = MirrorTargets::GetInstance();
  Reach({"silent"});
  // 60 kB each: more than the system buffers, and less than the 1 MB for which a target is dropped.
  for (int i = 0; i < 14; ++i) taviinputmanager::OnInputRawTextData("TEXT:" + QString(30000, 'a') + "\n");
  QElapsedTimer time;
  time.start();
  targets->Finish();
  EXPECT_GE(time.elapsed(), 900);
  EXPECT_LT(time.elapsed(), 20000);  // on a busy machine
  EXPECT_EQ(lost_, QStringList());
  EXPECT_EQ(targets->Names(), QStringList{"silent"});
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

}  // namespace
}  // namespace tavi
