// Converts lines for the guest to actions of a record.
#ifndef RECORD_COMMAND_TRANSLATION_H_
#define RECORD_COMMAND_TRANSLATION_H_

#include <QLatin1String>

class QString;

namespace taviinputmanager {

struct RecordAction;

// All of them take a line without its newline, set all fields of `action` except its timing, and return false for a
// line that is not recorded. Touch coordinates, which are read as ints, become fractions of the current display.
bool TranslateEventCommand(const QString& command, RecordAction* action);
// The same for a line from guest_command, whose numbers have only one form: it is not converted to a text.
bool TranslateEventLine(QLatin1String line, RecordAction* action);
bool TranslateTextCommand(const QString& command, RecordAction* action);

}  // namespace taviinputmanager

#endif  // RECORD_COMMAND_TRANSLATION_H_
