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

// The status bar of a window: the keymaps, or for a while a message; then the state of the mapping, other instances,
// gamepads, the guests that get the lines, and the guest's display.
//
// Main thread.
class StatusLine : public QObject {
  Q_OBJECT

 public:
  // The bar takes ownership of the labels and the button.
  StatusLine(QStatusBar* bar, MirrorLabel* mirrors, TargetButton* targets, QLabel* display);

  // `is_problem`: an error.
  void Tell(const QString& text, bool is_problem);
  // Repeats a message from before the window was shown: a message replaces only labels that are visible.
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
