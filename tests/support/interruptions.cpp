#include "tests/support/interruptions.h"

#include <utility>

#include "host/simulation/simulated_host.h"

namespace taviinputmanager::test {

namespace {

using tavi::SimulatedHost;

// Plain functions of the library's table have no place for it.
std::function<void(const QString&)> at_question;

SimulatedHost& Host() { return *SimulatedHost::GetInstance(); }

template <typename Answer>
Answer Ask(const char* question, const Answer& answer) {
  if (at_question) at_question(question);
  return answer;
}

void InterruptQuestions() {
  InputManagerCallbacks& table = Host().table;
  table.GetWindowGeometry = [] { return Ask("GetWindowGeometry", Host().window); };
  table.GetDisplayRotation = [] { return Ask("GetDisplayRotation", Host().rotation); };
  table.IsTextInputActive = [] { return Ask("IsTextInputActive", Host().text_input); };
  table.GetJoystickType = [](int) { return Ask("GetJoystickType", Host().joystick_type); };
  table.IsEscapeBackEnabled = [] { return Ask("IsEscapeBackEnabled", Host().escape_back); };
  table.GetDisplayRect = [] { return Ask("GetDisplayRect", Host().display); };
  table.GetTouchRect = [] { return Ask("GetTouchRect", Host().touch); };
  table.IsPrimaryDisplay = [](int display) { return Ask("IsPrimaryDisplay", display == Host().primary_display); };
}

}  // namespace

void InterruptWith(std::function<void(const QString& what)> interruption) {
  at_question = std::move(interruption);
  Host().interruption = [](const tavi::TimelineEntry& entry) {
    if (at_question) at_question(entry.text);
  };
  InterruptQuestions();
}

void InterruptAt(const QString& what, std::function<void()> action) {
  InterruptWith([what, action = std::move(action), is_done = false](const QString& present) mutable {
    if (present == what && !std::exchange(is_done, true)) action();
  });
}

}  // namespace taviinputmanager::test
