#include "record/record_macro_instruction_store.h"

#include "record/record_action.h"

namespace taviinputmanager {

RecordMacroInstructionStore* RecordMacroInstructionStore::GetInstance() {
  static RecordMacroInstructionStore instance;
  return &instance;
}

void RecordMacroInstructionStore::StartInstruction(const QString& name) { instructions_[name].clear(); }

void RecordMacroInstructionStore::StoreInstruction(const QString& name, const QList<RecordAction*>& actions) {
  instructions_.clear();
  QStringList& lines = instructions_[name];
  for (const RecordAction* action : actions) {
    if (action->data.startsWith(QLatin1String("sleep"))) continue;
    lines.append(QStringLiteral("sleep:") + QString::number(action->timing));
    lines.append(action->data);
  }
}

QStringList RecordMacroInstructionStore::GetInstruction(const QString& name) const { return instructions_.value(name); }

}  // namespace taviinputmanager
