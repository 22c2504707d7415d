#include "host/play/screen_size.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace tavi {

namespace {

QString FirstLine(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readLine()).trimmed() : QString();
}

// "1920x1080", and "1920,1080" for the console.
QSize SizeOf(const QString& text) {
  static const QRegularExpression form(QStringLiteral("^(\\d+)[x,](\\d+)"));
  const QRegularExpressionMatch match = form.match(text);
  return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

bool IsOn(const QString& connector) {
  return FirstLine(connector + QStringLiteral("/status")) == QLatin1String("connected") &&
         FirstLine(connector + QStringLiteral("/enabled")) == QLatin1String("enabled");
}

}  // namespace

QSize ScreenSize(const QString& system) {
  const QDir cards(system + QStringLiteral("/class/drm"));
  for (const QString& name : cards.entryList({QStringLiteral("card*-*")}, QDir::Dirs, QDir::Name)) {
    const QString connector = cards.filePath(name);
    if (!IsOn(connector)) continue;
    const QSize size = SizeOf(FirstLine(connector + QStringLiteral("/modes")));
    if (!size.isEmpty()) return size;
  }
  return SizeOf(FirstLine(system + QStringLiteral("/class/graphics/fb0/virtual_size")));
}

}  // namespace tavi
