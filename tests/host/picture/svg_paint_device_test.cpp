#include "host/picture/svg_paint_device.h"

#include <functional>
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QXmlStreamReader>

#include "host/picture/svg_writer.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

struct Element {
  QString name;
  QXmlStreamAttributes attributes;

  QString operator[](const char* attribute) const { return attributes.value(QLatin1String(attribute)).toString(); }
};

class SvgPaint : public testing::Test {
 protected:
  // The result of `paint` on a page of 100 x 50.
  QVector<Element> Paint(const std::function<void(QPainter*)>& paint) {
    SvgWriter writer(QSize(100, 50), QStringLiteral("a page"));
    SvgPaintDevice page(QSize(100, 50), &writer);
    QPainter painter(&page);
    painter.setPen(Qt::NoPen);
    paint(&painter);
    painter.end();
    return Read(writer.Finish());
  }

 private:
  static QVector<Element> Read(const QByteArray& page) {
    QVector<Element> elements;
    QXmlStreamReader xml(page);
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement) continue;
      if (xml.name() == QLatin1String("svg") || xml.name() == QLatin1String("title")) continue;
      elements.append({xml.name().toString(), xml.attributes()});
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return elements;
  }

  ApplicationObject<QGuiApplication> application_;
};

TEST_F(SvgPaint, AFilledShapeHasItsColourAndOpacity) {
  const auto elements = Paint([](QPainter* painter) { painter->fillRect(QRectF(1, 2, 3, 4), QColor(255, 0, 0, 51)); });
  ASSERT_EQ(elements.size(), 1);
  EXPECT_EQ(elements[0].name, QStringLiteral("path"));
  EXPECT_EQ(elements[0]["fill"], QStringLiteral("#ff0000"));
  EXPECT_EQ(elements[0]["fill-opacity"], QStringLiteral("0.2"));  // 51 / 255
  EXPECT_EQ(elements[0]["d"], QStringLiteral("M1 2L4 2L4 6L1 6L1 2"));
}

TEST_F(SvgPaint, ALineGrowsWithThePaintersUnits) {
  const auto elements = Paint([](QPainter* painter) {
    painter->scale(2, 2);
    painter->setPen(QPen(Qt::blue, 1.5));
    painter->drawLine(QPointF(1, 1), QPointF(5.25, 1));
  });
  ASSERT_EQ(elements.size(), 1);
  EXPECT_EQ(elements[0]["d"], QStringLiteral("M2 2L10.5 2"));
  EXPECT_EQ(elements[0]["stroke-width"], QStringLiteral("3"));
  EXPECT_EQ(elements[0]["fill"], QStringLiteral("none"));
}

// The dashes of a pen are relative to its width.
TEST_F(SvgPaint, ADashedLineStaysDashed) {
  const auto elements = Paint([](QPainter* painter) {
    QPen pen(Qt::blue, 2);
    pen.setDashPattern({4, 3});
    painter->setPen(pen);
    painter->drawLine(QPointF(0, 0), QPointF(50, 0));
  });
  ASSERT_EQ(elements.size(), 1);
  EXPECT_EQ(elements[0]["stroke-dasharray"], QStringLiteral("8 6"));
}

TEST_F(SvgPaint, LettersAreOutlines) {
  const auto elements = Paint([](QPainter* painter) {
    painter->setPen(Qt::white);
    painter->drawText(QRectF(0, 0, 100, 50), Qt::AlignCenter, QStringLiteral("W"));
  });
  ASSERT_EQ(elements.size(), 1);
  EXPECT_EQ(elements[0].name, QStringLiteral("path"));
  EXPECT_EQ(elements[0]["fill"], QStringLiteral("#ffffff"));
  EXPECT_GE(elements[0]["d"].count('L'), 8);  // a W has more than eight edges
}

TEST_F(SvgPaint, AClipHoldsUntilItIsTakenBack) {
  const auto elements = Paint([](QPainter* painter) {
    painter->save();
    painter->setClipRegion(QRegion(0, 0, 10, 10));
    painter->fillRect(QRectF(0, 0, 50, 50), Qt::red);
    painter->restore();
    painter->fillRect(QRectF(0, 0, 50, 50), Qt::red);
  });
  ASSERT_EQ(elements.size(), 4);
  EXPECT_EQ(elements[0].name, QStringLiteral("clipPath"));
  EXPECT_EQ(elements[1]["d"], QStringLiteral("M0 0L10 0L10 10L0 10L0 0"));
  EXPECT_EQ(elements[2]["clip-path"], QStringLiteral("url(#%1)").arg(elements[0]["id"]));
  EXPECT_EQ(elements[3]["clip-path"], QString());
}

TEST_F(SvgPaint, AnImageIsInsideOfThePage) {
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::green);
  const auto elements = Paint([&](QPainter* painter) {
    painter->drawPixmap(QRectF(0, 0, 100, 50), QPixmap::fromImage(image), QRectF(0, 0, 4, 4));
  });
  ASSERT_EQ(elements.size(), 1);
  EXPECT_EQ(elements[0].name, QStringLiteral("image"));
  EXPECT_EQ(elements[0]["width"], QStringLiteral("100"));
  EXPECT_EQ(elements[0]["height"], QStringLiteral("50"));
  const QString prefix = QStringLiteral("data:image/png;base64,");
  ASSERT_TRUE(elements[0]["href"].startsWith(prefix));
  const auto read = QImage::fromData(QByteArray::fromBase64(elements[0]["href"].mid(prefix.size()).toLatin1()));
  EXPECT_EQ(read.pixelColor(3, 3), QColor(Qt::green));
}

}  // namespace
}  // namespace tavi
