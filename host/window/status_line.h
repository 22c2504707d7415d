#ifndef HOST_WINDOW_STATUS_LINE_H_
#define HOST_WINDOW_STATUS_LINE_H_

#include <QObject>
#include <QString>

class QLabel;
class QStatusBar;

namespace tavi {

class Gamepads;
class MirrorLabel;
class TargetButton;
struct StateWord;

// The line at the bottom of a window: the keymaps, or for a while what a person is told; then the state of the mapping,
// other instances, gamepads, the guests that get the lines, the guest's display.
//
// Main thread.
class StatusLine : public QObject {
  Q_OBJECT

 public:
  // The labels and the button become the bar's.
  StatusLine(QStatusBar* bar, MirrorLabel* mirrors, TargetButton* targets, QLabel* display);

  // `is_problem`: something went wrong.
  void Tell(const QString& text, bool is_problem);
  // What was told before the window was shown is told once more: a message takes the place of those labels that are
  // seen.
  void TellAgain();
  void ShowKeymaps(const QString& contents, const QString& paths);
  void ShowPads(const Gamepads& pads);
  void ShowState(const StateWord& word);

 private:
  QStatusBar* bar_;
  QLabel* keymaps_;
  QLabel* state_;
  QLabel* pads_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_STATUS_LINE_H_
