#include "record/point_text.h"

#include <QList>
#include <QPointF>
#include <QString>
#include <QStringView>

#include "core/line_buffer.h"
#include "qt/numbers.h"

namespace taviinputmanager {

QString WritePoint(const QPointF& point) {
  LineBuffer text;
  WritePoint(point, &text);
  return text.ToString();
}

void WritePoint(const QPointF& point, LineBuffer* text) {
  text->Byte('(').Number(point.x()).Byte(',').Number(point.y()).Byte(')');
}

QPointF ReadPoint(const QString& text) {
  if (!text.startsWith(QLatin1Char('(')) || !text.endsWith(QLatin1Char(')'))) return {};
  const QList<QStringView> parts = QStringView(text).split(QLatin1Char(','));
  if (parts.size() != 2) return {};
  return {qt::ToDouble(parts.at(0).mid(1)), qt::ToDouble(parts.at(1).chopped(1))};
}

}  // namespace taviinputmanager
