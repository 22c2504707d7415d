// Lines between instances. The other instance is a bare socket here, which sends and receives the same.
#ifndef TESTS_HOST_WINDOW_MIRROR_STORY_H_
#define TESTS_HOST_WINDOW_MIRROR_STORY_H_

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_message.h"
#include "host/mirror/mirror_targets.h"
#include "host/session/live_host.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"

namespace tavi {

class Mirror : public testing::Test {
 protected:
  Mirror() {
    const MirrorTargets* targets = MirrorTargets::GetInstance();
    QObject::connect(targets, &MirrorTargets::Reached, &context_, [this] { ++reached_; });
    QObject::connect(targets, &MirrorTargets::Lost, &context_, [this](const QString& name, const QString& problem) {
      lost_.append({name, problem});
    });
    // No other test uses these names of files and pipes.
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder_.path()));
    qputenv("USERNAME", QFileInfo(folder_.path()).fileName().toUtf8());
    LiveHost::GetInstance()->Start(nullptr);
    QObject::connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, &context_, [this](const TimelineEntry& entry) {
      if (entry.source != TimelineEntry::Source::kCallback) said_.append(entry.text);
    });
  }

  // Sends lines to the instances that listen under these names.
  void Reach(const QStringList& names) {
    for (const QString& name : names) MirrorTargets::GetInstance()->Add(name);
    ASSERT_TRUE(taviinputmanager::RunEventsUntil([&] { return reached_ == names.size(); }));
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
  ApplicationObject<QApplication> application_;
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

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_MIRROR_STORY_H_
