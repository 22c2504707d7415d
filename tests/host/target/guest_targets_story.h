// Lines for guests.
#ifndef TESTS_HOST_TARGET_GUEST_TARGETS_STORY_H_
#define TESTS_HOST_TARGET_GUEST_TARGETS_STORY_H_

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>

#include "host/target/guest_targets.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"

namespace tavi {

class GuestTargetsTest : public testing::Test {
 protected:
  using State = TargetStatus::State;

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
    ASSERT_TRUE(taviinputmanager::RunEventsUntil([&] { return StateOf(target) == State::kConnected; }));
  }

  State StateOf(int target = 0) const { return targets_.StatusOf(target).state; }
  bool Becomes(State state, int target = 0) {
    return taviinputmanager::RunEventsUntil([&] { return StateOf(target) == state; });
  }
  bool IsTold(const QString& text) {
    return taviinputmanager::RunEventsUntil([&] { return messages_.contains(text); });
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
    const bool is_there = taviinputmanager::RunEventsUntil([&] {
      Read();
      return got_.size() >= bytes.size();
    });
    EXPECT_EQ(got_, bytes);
    return is_there && got_ == bytes;
  }
  void Hang() {
    ASSERT_TRUE(taviinputmanager::RunEventsUntil([&] { return Socket() != nullptr; }));
    socket_->abort();
    socket_ = nullptr;
    got_.clear();
  }
  bool HasLostItsHost() {
    return taviinputmanager::RunEventsUntil([&] {
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

}  // namespace tavi

#endif  // TESTS_HOST_TARGET_GUEST_TARGETS_STORY_H_
