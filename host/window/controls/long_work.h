#ifndef HOST_WINDOW_CONTROLS_LONG_WORK_H_
#define HOST_WINDOW_CONTROLS_LONG_WORK_H_

#include <functional>

class QString;
class QWidget;

namespace tavi {

// Runs `work` on a thread of its own, while the window of `parent` keeps painting and the guest keeps getting its
// lines. A dialog with `title` is shown, in which the user may cancel. Returns true when the work is done.
//
// After a cancel it returns false at once, and the work runs to its end unseen: it touches only what it owns.
//
// Main thread.
bool DoLongWork(QWidget* parent, const QString& title, const std::function<void()>& work);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_LONG_WORK_H_
