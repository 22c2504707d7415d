// The guest's display: rotated, with another pixel ratio, with a picture.
#include <QStatusBar>

#include "host/session/guest_geometry.h"
#include "host/window/view/background_picture.h"
#include "host/window/view/guest_menu.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

class GuestDisplay : public WindowFixture {
 protected:
  GuestDisplay() { Load(""); }  // otherwise a hint is shown in the middle

  // The position on the display where the only finger is drawn.
  QPointF Seen() const { return LiveHost::GetInstance()->Geometry().FractionOf(Finger()); }
  void ExpectSeenAt(double x, double y, const QString& where) const {
    constexpr double kPixel = 0.006;  // of a view that may be 317 pixels wide
    EXPECT_NEAR(Seen().x(), x, kPixel) << where.toStdString();
    EXPECT_NEAR(Seen().y(), y, kPixel) << where.toStdString();
  }
  QString WritePicture(const char* name, const QSize& size, const QColor& color) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    const QString path = folder_.filePath(name);
    EXPECT_TRUE(image.save(path));
    return path;
  }
  QColor ColorAt(double x, double y) const {
    const QImage image = View()->grab().toImage();
    return image.pixelColor(static_cast<int>(image.width() * x), static_cast<int>(image.height() * y));
  }
};

// A touch surface of 720 x 1280; the display's top left corner, a point at a quarter of its width and half its height,
// and its bottom right corner, each rotated by hand.
TEST(GuestGeometryTest, EachRotationShowsAPlaceWhereItIs) {
  const struct {
    int rotation;
    QSize display;
    QPoint top_left;
    QPoint quarter;
    QPoint bottom_right;
  } rows[] = {
      {0, {720, 1280}, {0, 0}, {180, 640}, {720, 1280}},
      {90, {1280, 720}, {720, 0}, {360, 320}, {0, 1280}},
      {180, {720, 1280}, {0, 0}, {180, 640}, {720, 1280}},
      {270, {1280, 720}, {0, 1280}, {360, 960}, {720, 0}},
  };
  for (const auto& row : rows) {
    const GuestGeometry guest{QSize(720, 1280), row.rotation};
    EXPECT_EQ(guest.DisplaySize(), row.display) << row.rotation;
    EXPECT_EQ(guest.FractionOf(row.top_left), QPointF(0, 0)) << row.rotation;
    EXPECT_EQ(guest.FractionOf(row.quarter), QPointF(0.25, 0.5)) << row.rotation;
    EXPECT_EQ(guest.FractionOf(row.bottom_right), QPointF(1, 1)) << row.rotation;
  }
}

// The complete round trip: the player's position, the library's line, the position where the finger is drawn.
TEST_F(GuestDisplay, AFingerIsSeenWhereThePlayerPutIt) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  for (const QSize& surface : {QSize(1280, 720), QSize(720, 1280)}) {
    Window()->Display()->SetSize(surface);
    for (const int rotation : {0, 90, 180, 270}) {
      Window()->Display()->SetRotation(rotation);
      for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
        Window()->Display()->SetPixelRatio(ratio);
        const QString where = QString("%1 wide, %2 degrees, ratio %3").arg(surface.width()).arg(rotation).arg(ratio);
        Press(kSpace);
        ExpectSeenAt(0.25, 0.75, "key, " + where);
        Release(kSpace);
        Mouse(QEvent::MouseButtonPress, At(0.1, 0.3), Qt::LeftButton, Qt::LeftButton);
        ExpectSeenAt(0.1, 0.3, "mouse, " + where);
        Mouse(QEvent::MouseMove, At(0.8, 0.6), Qt::NoButton, Qt::LeftButton);
        ExpectSeenAt(0.8, 0.6, "drag, " + where);
        Mouse(QEvent::MouseButtonRelease, At(0.8, 0.6), Qt::LeftButton, Qt::NoButton);
      }
    }
  }
}

// The stick's radius is a fraction of the display's width: 0.1 of 1280 pixels is 0.178 of 720, and 0.1 of 720 pixels is
// 0.056 of 1280.
TEST_F(GuestDisplay, AWalkingFingerIsSeenOnItsStick) {
  Load("{type: Swipehold, point: [0.2, 0.6], radius: 0.1, key_up: W, key_left: A, key_down: S, key_right: D}");
  for (const QSize& surface : {QSize(1280, 720), QSize(720, 1280)}) {
    Window()->Display()->SetSize(surface);
    for (const int rotation : {0, 90, 180, 270}) {
      Window()->Display()->SetRotation(rotation);
      const QSize display = LiveHost::GetInstance()->Geometry().DisplaySize();
      Press(kW);
      clock_->Advance(1000);
      ExpectSeenAt(0.2, 0.6 - 0.1 * display.width() / display.height(),
                   QString("%1 wide, %2 degrees").arg(surface.width()).arg(rotation));
      Release(kW);
      clock_->Advance(1000);
    }
  }
}

// A walk is computed in pixels of the display, which are taken for those of the view: if a host reports 1.5 of these
// for one of those, 0.2 is shown at 0.2 / 1.5. The switch exists to show this.
TEST_F(GuestDisplay, AWalkIsElsewhereWhereTheHostCountsOtherPixels) {
  Load("{type: Swipehold, point: [0.2, 0.6], radius: 0.1, key_up: W, key_left: A, key_down: S, key_right: D}");
  Window()->Display()->SetPixelRatio(1.5);
  Press(kW);
  clock_->Advance(1000);
  ExpectSeenAt(0.2 / 1.5, (0.6 - 0.1 * 1280 / 720) / 1.5, "ratio 1.5");
}

// 0.25 of the display's width and 0.75 of its height; rotated by 90 degrees: a = 1 - 0.75, b = 0.25 of 720 x 1280.
TEST_F(GuestDisplay, LinesAreOfTheSurfaceThatDoesNotTurn) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Window()->Display()->SetSize(QSize(720, 1280));
  Window()->Display()->SetRotation(90);
  Press(kSpace);
  EXPECT_EQ(Finger(), QPoint(180, 320));
  Release(kSpace);
  Window()->Display()->SetRotation(270);  // a = 0.75, b = 1 - 0.25
  Press(kSpace);
  EXPECT_EQ(Finger(), QPoint(540, 960));
}

TEST_F(GuestDisplay, TheViewHasTheShapeOfTheTurnedDisplay) {
  Window()->Display()->SetRotation(90);
  EXPECT_NEAR(static_cast<double>(View()->width()) / View()->height(), 720.0 / 1280, 0.01);
}

TEST_F(GuestDisplay, AFingerIsDrawnWhereItIsSeen) {
  Load("{type: Click, key: Space, point: [0.75, 0.25]}");
  Window()->Display()->SetRotation(270);
  View()->SetOverlayShown(false);
  const QColor before = ColorAt(0.75, 0.25);
  Press(kSpace);
  EXPECT_NE(ColorAt(0.75, 0.25), before);
}

TEST_F(GuestDisplay, TheHostTellsTheLibraryOfItsPixels) {
  Window()->Display()->SetPixelRatio(1.5);
  EXPECT_EQ(LiveHost::GetInstance()->ViewSize(), QSize(1920, 1080));
  Window()->Display()->SetRotation(90);
  EXPECT_EQ(LiveHost::GetInstance()->ViewSize(), QSize(1080, 1920));
}

TEST_F(GuestDisplay, WhatIsDownIsLetGoWhenTheDisplayTurns) {
  Load("{type: Click, key: Space, point: [0.25, 0.75]}");
  Press(kSpace);
  Window()->Display()->SetRotation(90);
  EXPECT_TRUE(Slots().isEmpty());
}

TEST_F(GuestDisplay, TheMenuMarksWhatIsSo) {
  auto* menu = Window()->findChild<GuestMenu*>();
  ASSERT_NE(menu, nullptr);
  const auto marked = [menu] {
    QStringList texts;
    for (const QAction* action : menu->findChildren<QAction*>()) {
      if (action->isChecked()) texts += action->text();
    }
    texts.sort();
    return texts;
  };
  Window()->Display()->SetRotation(270);
  Window()->Display()->SetPixelRatio(2);
  EXPECT_EQ(marked(), (QStringList{"1280 \u00D7 720", "2", "270\u00B0"}));
  for (QAction* action : menu->findChildren<QAction*>()) {
    if (action->text() == "90\u00B0") action->trigger();
  }
  EXPECT_EQ(LiveHost::GetInstance()->Geometry().rotation, 90);
}

// ---- The picture

TEST_F(GuestDisplay, APictureOfTheGuestsShapeFillsTheView) {
  EXPECT_EQ(Window()->Display()->SetBackground(WritePicture("a.png", QSize(1920, 1080), Qt::red)), QString());
  EXPECT_EQ(Window()->statusBar()->currentMessage(), QString());
  for (const double place : {0.01, 0.5, 0.99}) EXPECT_EQ(ColorAt(place, place), QColor(Qt::red)) << place;
}

TEST_F(GuestDisplay, APictureOfAnotherShapeKeepsItAndIsTold) {
  EXPECT_EQ(Window()->Display()->SetBackground(WritePicture("square.png", QSize(500, 500), Qt::red)), QString());
  EXPECT_EQ(Window()->statusBar()->currentMessage(),
            QString("square.png is 500 \u00D7 500, but the guest is 1280 \u00D7 720, which has another aspect "
                    "ratio: it is shown with bars"));
  // As wide as the view is high: 720 of 1280, from 0.22 to 0.78 of the width.
  EXPECT_EQ(ColorAt(0.23, 0.5), QColor(Qt::red));
  EXPECT_EQ(ColorAt(0.77, 0.5), QColor(Qt::red));
  EXPECT_NE(ColorAt(0.21, 0.5), QColor(Qt::red));
  EXPECT_NE(ColorAt(0.79, 0.5), QColor(Qt::red));
}

TEST_F(GuestDisplay, TheShapeIsComparedAgainWhenTheDisplayTurns) {
  EXPECT_EQ(Window()->Display()->SetBackground(WritePicture("a.png", QSize(1280, 720), Qt::red)), QString());
  Window()->Display()->SetRotation(90);
  EXPECT_TRUE(Window()->statusBar()->currentMessage().contains("the guest is 720 \u00D7 1280"));
}

TEST_F(GuestDisplay, WhatIsNoPictureIsToldAndChangesNothing) {
  ASSERT_EQ(Window()->Display()->SetBackground(WritePicture("a.png", QSize(1280, 720), Qt::red)), QString());
  const QString text = Write("keymap.yaml", "");
  const QString problem = Window()->Display()->SetBackground(text);
  EXPECT_TRUE(problem.startsWith(text + " cannot be read as a picture: ")) << problem.toStdString();
  EXPECT_TRUE(Window()->Display()->SetBackground(folder_.filePath("none.png")).contains("cannot be read"));
  EXPECT_EQ(ColorAt(0.5, 0.5), QColor(Qt::red));
}

TEST_F(GuestDisplay, NoBackgroundAgain) {
  ASSERT_EQ(Window()->Display()->SetBackground(WritePicture("a.png", QSize(1280, 720), Qt::red)), QString());
  EXPECT_EQ(Window()->Display()->SetBackground(QString()), QString());
  EXPECT_NE(ColorAt(0.5, 0.5), QColor(Qt::red));
}

// A JPEG may have any name.
TEST_F(GuestDisplay, ThePictureIsKnownByItsContent) {
  QImage image(64, 36, QImage::Format_RGB32);
  image.fill(Qt::green);
  const QString path = folder_.filePath("screen.png");
  ASSERT_TRUE(image.save(path, "JPG"));
  EXPECT_EQ(Window()->Display()->SetBackground(path), QString());
  EXPECT_GT(ColorAt(0.5, 0.5).green(), 200);
}

}  // namespace
}  // namespace tavi
