// Collects the reader's diagnostics.
#ifndef KEYMAPMANAGER_FIELDS_DIAGNOSTIC_LIST_H_
#define KEYMAPMANAGER_FIELDS_DIAGNOSTIC_LIST_H_

#include <QString>
#include <QVector>

#include "keymapmanager/keymap_file.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

class DiagnosticList {
 public:
  explicit DiagnosticList(const QString& file) : file_(file) {}

  void Error(const YamlSpan& span, const QString& message);
  void Warning(const YamlSpan& span, const QString& message);

  // To find out whether a step had errors: compare before and after.
  int ErrorCount() const { return error_count_; }
  // Further warnings would be dropped.
  bool IsFull() const;
  // Further errors would be dropped too: the reader may stop.
  bool HasEnough() const { return IsFull() && error_count_ > 0; }
  // In the order of the file. A list that is full ends with a note that there are more.
  QVector<Diagnostic> Sorted() const;

 private:
  void Add(Diagnostic::Severity severity, const YamlSpan& span, const QString& message);

  QString file_;
  QVector<Diagnostic> diagnostics_;
  int error_count_ = 0;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_DIAGNOSTIC_LIST_H_
