#include "host/window/pointer_capture.h"

#include <gtest/gtest.h>
#include <memory>

#include <QApplication>
#include <QCursor>
#include <QWidget>

namespace tavi {
namespace {

// A widget whose middle is at 150, 100 of the screen.
class PointerCaptureTest : public testing::Test {
 protected:
  PointerCaptureTest() : application_(argument_count_, arguments_), widget_(std::make_unique<QWidget>()) {
    widget_->setGeometry(100, 50, 101, 101);
    QCursor::setPos(10, 20);
  }

 private:
  int argument_count_ = 0;
  char* arguments_[1] = {nullptr};
  QApplication application_;

 protected:
  std::unique_ptr<QWidget> widget_;
};

TEST_F(PointerCaptureTest, ThePointerWaitsInTheMiddleAndComesBack) {
  PointerCapture capture(widget_.get());
  capture.SetActive(true);
  EXPECT_EQ(QCursor::pos(), QPoint(150, 100));
  EXPECT_EQ(widget_->cursor().shape(), Qt::BlankCursor);

  capture.SetActive(false);
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
  EXPECT_EQ(widget_->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(PointerCaptureTest, EachMoveCountsFromTheOneBefore) {
  PointerCapture capture(widget_.get());
  capture.SetActive(true);
  EXPECT_EQ(capture.TakeMovement({50, 50}), QPoint(0, 0));  // the way to the middle
  EXPECT_EQ(capture.TakeMovement({55, 47}), QPoint(5, -3));
  EXPECT_EQ(capture.TakeMovement({58, 47}), QPoint(3, 0));
  EXPECT_EQ(capture.TakeMovement({50, 50}), QPoint(-8, 3));  // the user's own way back
}

// A quarter of 101 pixels is 25. The pointer of the screen stands for what the window system was told.
TEST_F(PointerCaptureTest, ThePointerIsPutBackBeforeItGetsAway) {
  PointerCapture capture(widget_.get());
  capture.SetActive(true);
  capture.TakeMovement({50, 50});
  QCursor::setPos(175, 100);
  EXPECT_EQ(capture.TakeMovement({75, 50}), QPoint(25, 0));
  EXPECT_EQ(QCursor::pos(), QPoint(175, 100));
  QCursor::setPos(176, 100);
  EXPECT_EQ(capture.TakeMovement({76, 50}), QPoint(1, 0));
  EXPECT_EQ(QCursor::pos(), QPoint(150, 100));

  EXPECT_EQ(capture.TakeMovement({79, 50}), QPoint(3, 0));  // under way before it was put back
  EXPECT_EQ(capture.TakeMovement({50, 50}), QPoint(0, 0));
  EXPECT_EQ(capture.TakeMovement({48, 50}), QPoint(-2, 0));
}

TEST_F(PointerCaptureTest, TheEndOfTheCaptureIsTheEndOfItsOwner) {
  {
    PointerCapture capture(widget_.get());
    capture.SetActive(true);
  }
  EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
}

}  // namespace
}  // namespace tavi
