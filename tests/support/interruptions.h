// A host that does something inside the functions that the library calls.
#ifndef TESTS_SUPPORT_INTERRUPTIONS_H_
#define TESTS_SUPPORT_INTERRUPTIONS_H_

#include <functional>

#include <QString>

namespace taviinputmanager::test {

// From now on `interruption` runs inside every line, text and callback that the simulated host gets, after it was
// logged, and inside every question, before the answer. `what` is the text of the timeline's entry ("1:KBDPR:30:1",
// "status 1 F") or the name of the question ("GetDisplayRect").
void InterruptWith(std::function<void(const QString& what)> interruption);

// The same, only once: at the first that matches `what`.
void InterruptAt(const QString& what, std::function<void()> action);

}  // namespace taviinputmanager::test

#endif  // TESTS_SUPPORT_INTERRUPTIONS_H_
