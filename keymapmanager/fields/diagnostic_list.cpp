#include "keymapmanager/fields/diagnostic_list.h"

#include <algorithm>

namespace tavikeymapmanager {

namespace {

constexpr int kMostDiagnostics =
    1000;  // no author reads more, and an invalid file of maximum size would produce 100 times as many

bool IsBefore(const Diagnostic& a, const Diagnostic& b) {
  return a.line != b.line ? a.line < b.line : a.column < b.column;
}

}  // namespace

void DiagnosticList::Error(const YamlSpan& span, const QString& message) {
  ++error_count_;
  Add(Diagnostic::Severity::kError, span, message);
}

void DiagnosticList::Warning(const YamlSpan& span, const QString& message) {
  Add(Diagnostic::Severity::kWarning, span, message);
}

bool DiagnosticList::IsFull() const { return diagnostics_.size() >= kMostDiagnostics; }

void DiagnosticList::Add(Diagnostic::Severity severity, const YamlSpan& span, const QString& message) {
  // An error after the last place still replaces a warning, so that a file with errors never looks like one without.
  if (IsFull() && (severity == Diagnostic::Severity::kWarning || error_count_ > 1)) return;
  Diagnostic diagnostic;
  diagnostic.severity = severity;
  diagnostic.file = file_;
  diagnostic.line = span.line;
  diagnostic.column = span.column;
  diagnostic.end_line = span.end_line;
  diagnostic.end_column = span.end_column;
  diagnostic.message = message;
  diagnostics_ += diagnostic;
}

QVector<Diagnostic> DiagnosticList::Sorted() const {
  QVector<Diagnostic> sorted = diagnostics_;
  std::stable_sort(sorted.begin(), sorted.end(), IsBefore);
  if (sorted.size() < kMostDiagnostics) return sorted;
  Diagnostic more = sorted.last();
  more.message = QStringLiteral("only the first thousand are shown");
  sorted += more;
  return sorted;
}

}  // namespace tavikeymapmanager
