// What a drag writes, and what key presses bind.
#include <QKeyEvent>
#include <QLineF>

#include "host/editor/item_handles.h"
#include "host/editor/key_capture.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/host/editor/document_fixture.h"
#include "tests/support/system/native_key.h"

namespace tavi {
namespace {

using Shape = ItemHandle::Shape;

const QSizeF kView(1000, 500);

class ItemHandlesTest : public DocumentFixture {
 protected:
  QVector<ItemHandle> Handles(const char* item) {
    Open("format: 1\nitems: [" + QByteArray(item) + "]\n");
    return HandlesOf(*document_.Item(0), kView);
  }
  static const ItemHandle* Find(const QVector<ItemHandle>& handles, const char* field) {
    for (const ItemHandle& handle : handles) {
      if (handle.field == QLatin1String(field)) return &handle;
    }
    return nullptr;
  }
};

TEST_F(ItemHandlesTest, AnItemIsHeldAtItsPoint) {
  const auto handles = Handles("{type: Click, key: E, point: [0.25, 0.5]}");
  ASSERT_EQ(handles.size(), 1);
  EXPECT_EQ(handles[0].place, QPointF(250, 250));
  EXPECT_EQ(*ValueAt(handles[0], {500, 100}, kView).pair, QPointF(0.5, 0.2));
  EXPECT_EQ(*ValueAt(handles[0], {333.4, 100}, kView).pair, QPointF(0.333, 0.2));
  EXPECT_EQ(*ValueAt(handles[0], {-50, 900}, kView).pair, QPointF(0.001, 1));  // it stays on the display
}

TEST_F(ItemHandlesTest, AnItemWithoutAPlaceHasNone) {
  EXPECT_TRUE(Handles("{type: VirtualLeftStick, key_up: W}").isEmpty());
}

TEST_F(ItemHandlesTest, ARadiusIsOfTheWidthOrTheHeight) {
  auto handles = Handles("{type: Swipehold, key_up: W, point: [0.2, 0.5], radius: 0.1}");
  const ItemHandle* walk = Find(handles, "radius");
  ASSERT_NE(walk, nullptr);
  EXPECT_EQ(walk->place, QPointF(300, 250));                   // 0.2 and 0.1 of 1000
  EXPECT_EQ(ValueAt(*walk, {200, 100}, kView).number, 0.15);   // 150 of 1000 away
  EXPECT_EQ(ValueAt(*walk, {200, 250}, kView).number, 0.005);  // not nothing
  handles = Handles(
      "{type: Spell, key: Q, point: [0.9, 0.5], swipe_radius: 0.4, circle_point: [0.5, 0.5], circle_size: 0.2}");
  const ItemHandle* swipe = Find(handles, "swipe_radius");
  ASSERT_NE(swipe, nullptr);
  EXPECT_EQ(swipe->place, QPointF(700, 250));                 // 0.4 of 500, to the left since the view ends
  EXPECT_EQ(ValueAt(*swipe, {900, 150}, kView).number, 0.2);  // 100 of 500
  EXPECT_EQ(Find(handles, "circle_size")->origin, QPointF(500, 250));
}

TEST_F(ItemHandlesTest, AnAreaIsHeldAtItsCorner) {
  const auto handles =
      Handles("{type: Staring, key: R, point: [0.5, 0.5], range_mode: Range_User, range_size: [0.4, 0.2]}");
  const ItemHandle* area = Find(handles, "range_size");
  ASSERT_NE(area, nullptr);
  EXPECT_EQ(area->place, QPointF(700, 300));  // half of 0.4 * 1000 and of 0.2 * 500 from the middle
  EXPECT_EQ(*ValueAt(*area, {600, 350}, kView).pair, QPointF(0.2, 0.4));
  EXPECT_EQ(*ValueAt(*area, {400, 350}, kView).pair, QPointF(0.005, 0.4));
}

// One that has no size yet is drawn up from beside its middle.
TEST_F(ItemHandlesTest, AnAreaWithoutASizeCanBeHeldAllTheSame) {
  const auto handles = Handles("{type: Staring, key: R, point: [0.5, 0.5], range_mode: Range_User}");
  const ItemHandle* area = Find(handles, "range_size");
  ASSERT_NE(area, nullptr);
  EXPECT_EQ(area->place, QPointF(560, 290));
  EXPECT_EQ(*ValueAt(*area, {600, 350}, kView).pair, QPointF(0.2, 0.4));
}

TEST_F(ItemHandlesTest, WhatIsNotUsedIsNotHeld) {
  const auto handles = Handles("{type: Fire, key: Mouse Left, point: [0.5, 0.5]}");
  EXPECT_EQ(Find(handles, "alt_point"), nullptr);
  EXPECT_EQ(Find(Handles("{type: Staring, key: R, point: [0.5, 0.5]}"), "range_size"), nullptr);
}

TEST_F(ItemHandlesTest, AStraightCurveHasTwoEnds) {
  const auto handles = Handles("{type: Curve, key: E, point: [0.5, 0.5], curve_straight: true, curve_end: [0, -0.2]}");
  const ItemHandle* end = Find(handles, "curve_end");
  ASSERT_NE(end, nullptr);
  EXPECT_EQ(end->place, QPointF(500, 150));
  EXPECT_EQ(*ValueAt(*end, {600, 300}, kView).pair, QPointF(0.1, 0.1));
  EXPECT_NE(Find(handles, "curve_start"), nullptr);
}

TEST(NudgedPoint, IsAPixelOfTheGuestAside) {
  const QSize guest(1280, 720);
  EXPECT_EQ(NudgedPoint({0.5, 0.5}, {1, 0}, guest), QPointF(641 / 1280.0, 0.5));
  EXPECT_EQ(NudgedPoint({0.5008, 0.5}, {1, 0}, guest), QPointF(642 / 1280.0, 0.5));  // 0.5008 is pixel 641, rounded
  EXPECT_EQ(NudgedPoint({0.5, 0}, {0, -10}, guest), QPointF(0.5, 0));
  EXPECT_EQ(NudgedPoint({0.5, 0.7201}, {1, 0}, guest), QPointF(641 / 1280.0, 0.7201));  // not onto pixel 518 on the way
  EXPECT_EQ(NudgedPoint({-0.05, 0}, {1, 0}, {10, 10}), QPointF(0.1, 0));  // halves are rounded up, below 0 too
}

TEST(KeyCapture, OneKeyIsTakenAtOnceWhereThereAreNoChords) {
  KeyCapture capture;
  EXPECT_EQ(capture.Press("W"), "W");
}

TEST(KeyCapture, AKeyIsTakenWhenItComesUp) {
  KeyCapture capture(true);
  EXPECT_EQ(capture.Press("Left Shift"), "");
  EXPECT_EQ(capture.Press("Left Shift"), "");  // repeated
  EXPECT_EQ(capture.Release("Q"), "");         // held since before
  EXPECT_EQ(capture.Release("Left Shift"), "Left Shift");
}

TEST(KeyCapture, ASecondKeyMakesAChord) {
  KeyCapture keyboard(true);
  keyboard.Press("Left Shift");
  EXPECT_EQ(keyboard.Press("Q"), "Left Shift + Q");
  KeyCapture pad(true);
  pad.Press("Pad LB");
  EXPECT_EQ(pad.Press("Pad A"), "Pad LB+A");
  KeyCapture mixed(true);
  mixed.Press("Q");
  EXPECT_EQ(mixed.Press("Mouse Right"), "");
  EXPECT_EQ(mixed.Press("Pad A"), "");
  EXPECT_EQ(mixed.Release("Q"), "Q");
}

TEST(KeyNames, AreThoseOfKeymaps) {
  const QKeyEvent space = NativeKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, 57);
  EXPECT_EQ(NameOfKeyEvent(space), "Space");
  EXPECT_EQ(NameOfKeyEvent(QKeyEvent(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, 0, 0, 0)), "");
  EXPECT_EQ(NameOfMouseButton(Qt::RightButton), "Mouse Right");
  EXPECT_EQ(NameOfMouseButton(Qt::ExtraButton1), "Mouse Side 1");
  EXPECT_EQ(NameOfPadButton("A"), "Pad A");
  EXPECT_EQ(NameOfPadButton("Guide"), "Pad Guide");
}

}  // namespace
}  // namespace tavi
