// The keymap over the view is drawn once, and looks the same as if it were drawn for each frame.
#include "host/window/view/drawn_overlay.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include "host/picture/overlay_marks.h"
#include "keymapmanager/keymap_file.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

constexpr QSize kView(640, 360);

QVector<OverlayMark> Marks(const char* items) {
  return MarksOf(tavikeymapmanager::ReadKeymapText("format: 1\nitems: [" + QByteArray(items) + "]\n", {}));
}

template <typename Overlay>
QImage Painted(Overlay* overlay, const QSize& view = kView) {
  QImage image(view, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  overlay->Paint(&painter, view);
  return image;
}

// Blending translucent pixels twice rounds differently, so the images are not compared exactly.
int LargestDifference(const QImage& a, const QImage& b) {
  int largest = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = a.pixelColor(x, y);
      const QColor other = b.pixelColor(x, y);
      largest = qMax(largest, qAbs(one.red() - other.red()));
      largest = qMax(largest, qAbs(one.green() - other.green()));
      largest = qMax(largest, qAbs(one.blue() - other.blue()));
    }
  }
  return largest;
}

class DrawnOverlayTest : public testing::Test {
 private:
  ApplicationObject<QGuiApplication> application_;

 protected:
  DrawnOverlayTest() { drawn_.SetMarks(Marks("{type: Click, key: A, point: [0.5, 0.5]}")); }

  DrawnOverlay drawn_;
};

TEST_F(DrawnOverlayTest, LooksAsIfDrawnEachTime) {
  KeymapOverlay overlay;
  overlay.SetMarks(Marks("{type: Click, key: A, point: [0.5, 0.5]}"));
  const QImage once = Painted(&drawn_);
  EXPECT_LE(LargestDifference(Painted(&overlay), once), 3);
  EXPECT_EQ(once, Painted(&drawn_));
}

TEST_F(DrawnOverlayTest, IsDrawnAnewForAnotherKeymapSizeOrCorner) {
  const QImage before = Painted(&drawn_);
  drawn_.SetMarks(Marks("{type: Click, key: B, point: [0.25, 0.5]}"));
  const QImage other = Painted(&drawn_);
  EXPECT_NE(before, other);
  EXPECT_NE(other.scaled(kView * 2), Painted(&drawn_, kView * 2));
  EXPECT_EQ(other, Painted(&drawn_)) << "and for the first size again";
  drawn_.SetCovered(QRectF(120, 160, 80, 40));
  EXPECT_NE(other, Painted(&drawn_)) << "keys give way to what covers them";
}

}  // namespace
}  // namespace tavi
