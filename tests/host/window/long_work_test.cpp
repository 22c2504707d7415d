// Long work while a window stays responsive.
#include "host/window/controls/long_work.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QPushButton>
#include <QSemaphore>
#include <QThread>
#include <QTimer>

namespace tavi {
namespace {

class LongWork : public testing::Test {
 protected:
  LongWork() : application_(argument_count_, arguments_) {}

  // The dialog of the work in progress.
  static QProgressDialog* Dialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<QProgressDialog*>(widget)) return dialog;
    }
    return nullptr;
  }

  int argument_count_ = 1;
  char name_[5] = "test";
  char* arguments_[2] = {name_, nullptr};
  QApplication application_;
};

TEST_F(LongWork, IsDoneElsewhere) {
  QThread* worker = nullptr;
  EXPECT_TRUE(DoLongWork(nullptr, "Reading", [&worker] { worker = QThread::currentThread(); }));
  EXPECT_NE(nullptr, worker);
  EXPECT_NE(QThread::currentThread(), worker);
}

// The work waits for a timer of the main thread: it would never end if the event loop was blocked.
TEST_F(LongWork, LetsTheWindowGoOn) {
  QSemaphore painted;
  QString title;
  QTimer::singleShot(0, [&] {
    title = Dialog() ? Dialog()->labelText() : QString();
    painted.release();
  });
  EXPECT_TRUE(DoLongWork(nullptr, "Reading walk.json", [&painted] { painted.acquire(); }));
  EXPECT_EQ("Reading walk.json", title.toStdString());
  EXPECT_EQ(nullptr, Dialog());
}

TEST_F(LongWork, CanBeCancelled) {
  QSemaphore go_on;
  QSemaphore ended;
  QTimer::singleShot(0, [] { Dialog()->findChild<QPushButton*>()->click(); });
  const auto work = [&go_on, &ended] {
    go_on.acquire();
    ended.release();
  };
  EXPECT_FALSE(DoLongWork(nullptr, "Reading", work));
  EXPECT_EQ(0, ended.available());  // still working
  go_on.release();
  ended.acquire();
}

// The end of the program waits for cancelled work.
TEST_F(LongWork, IsOverBeforeTheProgramEnds) {
  QSemaphore go_on;
  bool is_done = false;
  QObject::connect(&application_, &QApplication::aboutToQuit, [&go_on] { go_on.release(); });
  QTimer::singleShot(0, [] { Dialog()->findChild<QPushButton*>()->click(); });
  DoLongWork(nullptr, "Reading", [&] {
    go_on.acquire();
    is_done = true;
  });
  QTimer::singleShot(0, &QApplication::quit);
  QApplication::exec();
  EXPECT_TRUE(is_done);
}

}  // namespace
}  // namespace tavi
