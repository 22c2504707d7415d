// The event loop of a player, pass by pass.
#include "host/play/epoll_dispatcher.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <unistd.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>

#include "tests/support/application_object.h"

namespace tavi {
namespace {

// Both ends of a pipe: writing to one makes the other readable.
class Pipe {
 public:
  Pipe() { EXPECT_EQ(::pipe(ends_.data()), 0); }
  ~Pipe() {
    CloseWriter();
    ::close(Reader());
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;

  int Reader() const { return ends_[0]; }
  int Writer() const { return ends_[1]; }
  void Write() const { EXPECT_EQ(::write(Writer(), "x", 1), 1); }
  void Read() const {
    char byte = 0;
    EXPECT_EQ(::read(Reader(), &byte, 1), 1);
  }
  void CloseWriter() {
    if (ends_[1] >= 0) ::close(ends_[1]);
    ends_[1] = -1;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

class EpollDispatcherTest : public testing::Test {
 protected:
  EpollDispatcherTest() : dispatcher_(Install()) {}

  // Reads the pipe, and counts the reads.
  std::unique_ptr<QSocketNotifier> Listen(const Pipe& pipe) {
    auto notifier = std::make_unique<QSocketNotifier>(pipe.Reader(), QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [this, &pipe] {
      pipe.Read();
      ++read_;
    });
    return notifier;
  }
  bool Pass() { return dispatcher_->processEvents(QEventLoop::AllEvents); }
  bool WaitingPass() { return dispatcher_->processEvents(QEventLoop::WaitForMoreEvents); }

  EpollDispatcher* dispatcher_;  // the application's
  int read_ = 0;

 private:
  static EpollDispatcher* Install() {
    auto* dispatcher = new EpollDispatcher;
    QCoreApplication::setEventDispatcher(dispatcher);
    return dispatcher;
  }

  ApplicationObject<QCoreApplication> application_;
};

TEST_F(EpollDispatcherTest, AFileIsReadWhenItHasSomething) {
  const Pipe pipe;
  const auto notifier = Listen(pipe);
  EXPECT_FALSE(Pass());
  pipe.Write();
  EXPECT_TRUE(WaitingPass());
  EXPECT_EQ(read_, 1);
  EXPECT_FALSE(Pass());
  EXPECT_EQ(read_, 1);
}

TEST_F(EpollDispatcherTest, WhatIsLeftInAFileIsToldAgain) {
  const Pipe pipe;
  const auto notifier = Listen(pipe);
  pipe.Write();
  pipe.Write();
  EXPECT_TRUE(Pass());
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 2);
}

TEST_F(EpollDispatcherTest, AllFilesThatHaveSomethingAreServedInAPass) {
  const Pipe pipes[3];
  const auto first = Listen(pipes[0]);
  const auto second = Listen(pipes[1]);
  const auto third = Listen(pipes[2]);
  pipes[0].Write();
  pipes[2].Write();
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 2);
}

TEST_F(EpollDispatcherTest, ANotifierThatIsOffHearsNothing) {
  const Pipe pipe;
  const auto notifier = Listen(pipe);
  notifier->setEnabled(false);
  pipe.Write();
  EXPECT_FALSE(Pass());
  EXPECT_EQ(read_, 0);
  notifier->setEnabled(true);
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 1);
}

// Both are ready; the first to be called deletes the other.
TEST_F(EpollDispatcherTest, ANotifierThatEndsMeanwhileHearsNothing) {
  const Pipe pipes[2];
  std::unique_ptr<QSocketNotifier> notifiers[2];
  for (const int i : {0, 1}) {
    notifiers[i] = Listen(pipes[i]);
    QObject::connect(notifiers[i].get(), &QSocketNotifier::activated, [&notifiers, i] { notifiers[1 - i].reset(); });
    pipes[i].Write();
  }
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 1);
}

TEST_F(EpollDispatcherTest, TheEndOfAFileIsTold) {
  Pipe pipe;
  QSocketNotifier reader(pipe.Reader(), QSocketNotifier::Read);
  QObject::connect(&reader, &QSocketNotifier::activated, [this] { ++read_; });
  pipe.CloseWriter();
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 1);
}

TEST_F(EpollDispatcherTest, AFileWithRoomIsToldToItsWriter) {
  const Pipe pipe;
  QSocketNotifier writer(pipe.Writer(), QSocketNotifier::Write);
  int told = 0;
  QObject::connect(&writer, &QSocketNotifier::activated, [&] {
    ++told;
    writer.setEnabled(false);
  });
  EXPECT_TRUE(WaitingPass());
  EXPECT_FALSE(Pass());
  EXPECT_EQ(told, 1);
}

// The next file to be opened gets the number of a closed one.
TEST_F(EpollDispatcherTest, AFileThatTakesTheNumberOfAnotherIsHeard) {
  auto old = std::make_unique<Pipe>();
  const auto stale = Listen(*old);
  const int number = old->Reader();
  old.reset();
  const Pipe pipe;
  ASSERT_EQ(pipe.Reader(), number);
  stale->setEnabled(false);
  const auto notifier = Listen(pipe);
  pipe.Write();
  EXPECT_TRUE(Pass());
  EXPECT_EQ(read_, 1);
}

TEST_F(EpollDispatcherTest, WhatIsPostedIsDelivered) {
  int delivered = 0;
  QMetaObject::invokeMethod(
      dispatcher_, [&] { ++delivered; }, Qt::QueuedConnection);
  Pass();
  EXPECT_EQ(delivered, 1);
  QPointer<QObject> deleted = new QObject;
  QTimer::singleShot(0, [&deleted] { deleted->deleteLater(); });
  QEventLoop loop;
  QObject::connect(deleted, &QObject::destroyed, &loop, &QEventLoop::quit);
  loop.exec();
  EXPECT_TRUE(deleted.isNull());
}

TEST_F(EpollDispatcherTest, AnotherThreadWakesIt) {
  QEventLoop loop;
  std::thread other([&loop] { QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection); });
  EXPECT_EQ(loop.exec(), 0);  // returns only if it is woken
  other.join();
}

TEST_F(EpollDispatcherTest, ATimerWakesItAndNeverTooSoon) {
  QElapsedTimer clock;
  QTimer timer;
  timer.setTimerType(Qt::PreciseTimer);
  QEventLoop loop;
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  clock.start();
  timer.start(3);
  loop.exec();
  EXPECT_GE(clock.nsecsElapsed(), 2'999'000);  // the dispatcher's clock counts microseconds
}

TEST_F(EpollDispatcherTest, TimersFireInTheOrderOfTheirTimes) {
  std::string order;
  QEventLoop loop;
  QTimer::singleShot(2, &loop, [&] {
    order += 'c';
    loop.quit();
  });
  QTimer::singleShot(0, &loop, [&] { order += 'a'; });
  QTimer::singleShot(1, &loop, [&] { order += 'b'; });
  loop.exec();
  EXPECT_EQ(order, "abc");
}

// While the handler waits, it is not called again, and the nested loop still waits for files.
TEST_F(EpollDispatcherTest, ATimerIsNotWaitedForInsideOfItsOwnHandler) {
  const Pipe pipe;
  const auto notifier = Listen(pipe);
  QTimer timer;
  int calls = 0;
  QObject::connect(&timer, &QTimer::timeout, [&] {
    ++calls;
    pipe.Write();
    EXPECT_TRUE(WaitingPass());
    timer.stop();
  });
  timer.start(0);
  EXPECT_TRUE(Pass());
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(read_, 1);
  EXPECT_FALSE(Pass());
}

}  // namespace
}  // namespace tavi
