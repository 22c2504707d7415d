#include "host/record/record_file.h"

#include <algorithm>

#include "host/system/console.h"

namespace tavi {

namespace {

constexpr int kMostFindings = 40;

QString FormatFinding(const QString& name, const RecordFinding& finding) {
  QString text = name + QLatin1Char(':');
  if (finding.line > 0) text += QStringLiteral("%1:%2:").arg(finding.line).arg(finding.column);
  text += finding.is_error ? QLatin1String(" error: ") : QLatin1String(" warning: ");
  if (!finding.path.isEmpty()) text += finding.path + QLatin1String(": ");
  return text + finding.message + QLatin1Char('\n');
}

}  // namespace

bool RecordFile::HasErrors() const {
  return std::any_of(findings.begin(), findings.end(), [](const RecordFinding& finding) { return finding.is_error; });
}

QString FormatFindings(const QString& name, const RecordFile& record) {
  const int shown = std::min<int>(record.findings.size(), kMostFindings);
  QString text;
  for (int i = 0; i < shown; ++i) text += FormatFinding(name, record.findings[i]);
  const int more = record.findings.size() - shown;
  if (more > 0) text += QStringLiteral("%1: and %2 more\n").arg(name).arg(more);
  return text;
}

bool IsRecordUsable(const QString& name, const RecordFile& record) {
  PrintError(FormatFindings(name, record));
  return !record.HasErrors();
}

const RecordAction* FirstAction(const RecordPart& part) {
  if (part.is_merged) return part.parts.empty() ? nullptr : FirstAction(part.parts.front());
  return part.actions.empty() ? nullptr : &part.actions.front();
}

}  // namespace tavi
