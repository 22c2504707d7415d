// The macro that was captured last.
#ifndef RECORD_RECORD_MACRO_INSTRUCTION_STORE_H_
#define RECORD_RECORD_MACRO_INSTRUCTION_STORE_H_

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace taviinputmanager {

struct RecordAction;

// Main thread. Only the newest macro is kept.
class RecordMacroInstructionStore {
 public:
  static RecordMacroInstructionStore* GetInstance();

  // The macro with this name becomes empty; others stay until one is stored.
  void StartInstruction(const QString& name);
  // Removes all macros, and stores these instructions with a "sleep:<ms>" before each.
  void StoreInstruction(const QString& name, const QList<RecordAction*>& actions);
  // Empty for an unknown name.
  QStringList GetInstruction(const QString& name) const;

 private:
  RecordMacroInstructionStore() = default;

  QMap<QString, QStringList> instructions_;
};

}  // namespace taviinputmanager

#endif  // RECORD_RECORD_MACRO_INSTRUCTION_STORE_H_
