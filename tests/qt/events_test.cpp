// The same behaviour with each Qt.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "qt/lasting_text.h"
#include "qt/mouse_events.h"
#include "qt/touch_events.h"
#include "qt/wheel_events.h"
#include "tests/support/application_object.h"

namespace {

class Events : public testing::Test {
 private:
  tavi::ApplicationObject<QGuiApplication> application_;
};

int Turn(const QPoint& angle) {
  return qt::TurnOf(QWheelEvent({1, 2}, {3, 4}, {}, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
}

TEST_F(Events, AWheelTurnsOnTheAxisThatTurnsFurther) {
  EXPECT_EQ(Turn({0, 120}), 120);
  EXPECT_EQ(Turn({0, -120}), -120);
  EXPECT_EQ(Turn({-120, 0}), -120);
  EXPECT_EQ(Turn({-121, 120}), -121);
  EXPECT_EQ(Turn({120, -121}), -121);
  EXPECT_EQ(Turn({0, 0}), 0);
}

TEST_F(Events, AWheelThatTurnsEquallyOnBothAxesTurnsOnTheUprightOne) {
  EXPECT_EQ(Turn({120, -120}), -120);
  EXPECT_EQ(Turn({-120, 120}), 120);
}

TEST_F(Events, AMouseEventHasThreePlaces) {
  const QMouseEvent event(QEvent::MouseMove, {1.5, 2.5}, {30, 40}, {500, 600}, Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
  EXPECT_EQ(qt::PlaceOf(event), QPointF(1.5, 2.5));
  EXPECT_EQ(qt::PlaceInWindow(event), QPointF(30, 40));
  EXPECT_EQ(qt::PlaceOnScreen(event), QPointF(500, 600));
}

TEST_F(Events, ATouchEventHasThePointsThatItWasMadeOf) {
  const QTouchEvent event = qt::MakeTouchEvent(QEvent::TouchUpdate, Qt::ShiftModifier,
                                               {qt::MakeTouchPoint(7, Qt::TouchPointPressed, {1.5, 2.5}),
                                                qt::MakeTouchPoint(3, Qt::TouchPointReleased, {-4, 5})});
  EXPECT_EQ(event.type(), QEvent::TouchUpdate);
  EXPECT_EQ(event.modifiers(), Qt::ShiftModifier);
  EXPECT_EQ(event.touchPointStates(), Qt::TouchPointPressed | Qt::TouchPointReleased);
  ASSERT_EQ(qt::PointsOf(event).size(), 2);
  const qt::TouchPoint& first = qt::PointsOf(event).first();
  EXPECT_EQ(first.id(), 7);
  EXPECT_EQ(qt::StateOf(first), Qt::TouchPointPressed);
  EXPECT_EQ(qt::PlaceOf(first), QPointF(1.5, 2.5));
  const qt::TouchPoint& last = qt::PointsOf(event).last();
  EXPECT_EQ(last.id(), 3);
  EXPECT_EQ(qt::StateOf(last), Qt::TouchPointReleased);
  EXPECT_EQ(qt::PlaceOf(last), QPointF(-4, 5));
}

TEST(LastingText, IsACopyThatAllItsCopiesShare) {
  QString source = QStringLiteral("Scan %1").arg(200);
  static const QString lasting = qt::Lasting(source);  // never freed, and so it must stay reachable
  EXPECT_NE(lasting.constData(), source.constData());
  source.fill(QLatin1Char('x'));
  const QString copy = lasting;
  EXPECT_EQ(copy.constData(), lasting.constData());
  EXPECT_EQ(copy, QStringLiteral("Scan 200"));
  QString changed = copy;
  changed += QLatin1Char('!');
  EXPECT_EQ(changed, QStringLiteral("Scan 200!"));
  EXPECT_EQ(lasting, QStringLiteral("Scan 200"));
}

}  // namespace
