#ifndef HOST_WINDOW_CONTROLS_LONG_WORK_H_
#define HOST_WINDOW_CONTROLS_LONG_WORK_H_

#include <functional>

class QString;
class QWidget;

namespace tavi {

// Does `work` on a thread of its own, while the window of `parent` goes on to be painted and the guest to get what is
// under way. A dialog with `title` keeps the person company, who may cancel. Returns true when the work is done.
//
// After a cancel false comes at once, and the work goes on to its end unseen: it touches only what it owns.
//
// Main thread.
bool DoLongWork(QWidget* parent, const QString& title, const std::function<void()>& work);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_LONG_WORK_H_
