#include "host/session/keymap_report.h"

#include "keymapmanager/keymap_file.h"

namespace tavi {

QString FormatDiagnostics(const tavikeymapmanager::LoadResult& result) {
  QString text;
  for (const tavikeymapmanager::Diagnostic& diagnostic : result.diagnostics) {
    text += tavikeymapmanager::FormatDiagnostic(diagnostic) + QLatin1Char('\n');
  }
  return text;
}

QString ItemCountText(const tavikeymapmanager::LoadResult& result) {
  const int count = result.config->items.size();
  if (count == 0) return QStringLiteral("no items");
  return count == 1 ? QStringLiteral("1 item") : QStringLiteral("%1 items").arg(count);
}

}  // namespace tavi
