// From lines for the guest to actions of a record.
#ifndef RECORD_COMMAND_TRANSLATION_H_
#define RECORD_COMMAND_TRANSLATION_H_

#include <QLatin1String>

class QString;

namespace taviinputmanager {

struct RecordAction;

// All take a line without its newline, fill all fields of `action` but its timing, and return false for a line that no
// record holds. Touch coordinates become fractions of the display of the moment; they are read as ints.
bool TranslateEventCommand(const QString& command, RecordAction* action);
// The same of a line that guest_command has put together, whose numbers have one form: no text is made of it.
bool TranslateEventLine(QLatin1String line, RecordAction* action);
bool TranslateTextCommand(const QString& command, RecordAction* action);

}  // namespace taviinputmanager

#endif  // RECORD_COMMAND_TRANSLATION_H_
