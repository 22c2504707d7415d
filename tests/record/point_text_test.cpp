#include "record/point_text.h"

#include <gtest/gtest.h>

#include <QPointF>
#include <QString>

namespace taviinputmanager {
namespace {

TEST(PointText, HasSixDigitsInTheShorterForm) {
  const struct {
    QPointF point;
    const char* text;
  } rows[] = {
      {{0, 0}, "(0,0)"},
      {{0.5, 1}, "(0.5,1)"},
      {{1.0 / 3, 2.0 / 3}, "(0.333333,0.666667)"},
      {{-0.25, 1.5}, "(-0.25,1.5)"},
      {{0.00001, 0.0001}, "(1e-05,0.0001)"},
      {{1234567, 123456}, "(1.23457e+06,123456)"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.text, WritePoint(row.point).toStdString());
    const QString as_qt = QString("(%1,%2)").arg(QString::number(row.point.x(), 'g', 6)).arg(row.point.y(), 0, 'g', 6);
    EXPECT_EQ(as_qt.toStdString(), WritePoint(row.point).toStdString());
  }
}

TEST(PointText, WhatIsNoPointReadsAsTheNullPoint) {
  for (const char* text : {"", "(", ")", "()", "0.5,0.5", "(0.5,0.5", "0.5,0.5)", "(0.5)", "(0.5,0.5,0.5)", " (1,2)"}) {
    EXPECT_TRUE(ReadPoint(text).isNull()) << text;
  }
}

TEST(PointText, ANumberThatCannotBeReadIsZero) {
  EXPECT_EQ(QPointF(0, 0.5), ReadPoint("(x,0.5)"));
  EXPECT_EQ(QPointF(0.5, 0), ReadPoint("(0.5,)"));
  EXPECT_EQ(QPointF(-0.25, 1e-5), ReadPoint("(-0.25,1e-05)"));
}

}  // namespace
}  // namespace taviinputmanager
