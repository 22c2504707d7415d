// Child processes that run code of their own before the program: Qt 5.
#ifndef QT_5_QT_CHILD_PROCESS_H_
#define QT_5_QT_CHILD_PROCESS_H_

#include <functional>
#include <utility>

#include <QProcess>

namespace qt {

// Posix only.
class ChildProcess : public QProcess {
 public:
  // The next start calls this in the child, between fork and exec, when the standard channels are open.
  void setChildProcessModifier(std::function<void()> modifier) { modifier_ = std::move(modifier); }

 protected:
  void setupChildProcess() override {
    if (modifier_) modifier_();
  }

 private:
  std::function<void()> modifier_;
};

}  // namespace qt

#endif  // QT_5_QT_CHILD_PROCESS_H_
