#include "record/record_actions.h"

#include "core/numbers.h"
#include "record/record_action.h"
#include "record/record_format.h"

namespace taviinputmanager {

bool RecordActions::First(RecordAction* action, int* delay) {
  if (!action || !delay) return false;
  repeat_index = 1;
  delay_issued_for = 0;
  return true;
}

bool RecordActions::Next(RecordAction* /*action*/, int* /*delay*/) { return true; }

bool RecordActions::RepeatDelay(RecordAction* action, int* delay) {
  if (delay_issued_for >= repeat_index || control.repeat_delay < 1) return false;
  delay_issued_for = repeat_index;
  action->type = record_format::kTypeTimer;
  *delay = AtSpeed(control.repeat_delay);
  return true;
}

int RecordActions::AtSpeed(int ms) const { return Truncate(1.0 / (speed > 0 ? speed : 1.0) * ms); }

}  // namespace taviinputmanager
