#include "host/uinput/timeline_line.h"

#include <QRegularExpression>

namespace tavi {

std::optional<TimedLine> ReadTimelineLine(const QString& line) {
  static const QRegularExpression form(QStringLiteral("^(\\d{1,9})ms (! |text )?(.*)$"),
                                       QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch match = form.match(line);
  if (!match.hasMatch()) return std::nullopt;
  const QStringView mark = match.capturedView(2);
  const SentLine sent{mark == QLatin1String("text "), match.captured(3)};
  return TimedLine{match.capturedView(1).toInt(), mark == QLatin1String("! "), sent};
}

}  // namespace tavi
