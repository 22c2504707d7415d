#ifndef HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_
#define HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_

#include <QFrame>
#include <QString>

#include "host/window/findings/placed_finding.h"

class QLabel;
class QScrollArea;

namespace tavi {

class KeymapSource;

// Shows the diagnostics of the keymap in use. Hidden while there are none.
class DiagnosticsPanel : public QFrame {
  Q_OBJECT

 public:
  // `subject` is the keymap's name at the start of a sentence.
  explicit DiagnosticsPanel(const QString& subject, QWidget* parent = nullptr);

  // `placed` are the diagnostics that have a mark on the guest's screen.
  void Show(const KeymapSource& source, const Findings& findings);
  // From now on the panel has this height whatever it shows, because what is below must not move under the pointer. 0
  // hides it; kOwnHeight, the initial state, makes it as high as its content.
  void KeepHeight(int height);
  static constexpr int kOwnHeight = -1;
  static constexpr int kEditingHeight = 72;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 Q_SIGNALS:
  // A diagnostic with a mark was clicked.
  void FindingChosen(const QString& label);

 private:
  void Render();
  void Arrange();
  int HeightOfFindings() const;

  const QString subject_;
  QLabel* title_;
  QLabel* findings_;
  QScrollArea* scroll_;
  Findings shown_;
  bool has_errors_ = false;     // of the file in its current state
  bool keeps_earlier_ = false;  // and an earlier state is in use
  int kept_height_ = kOwnHeight;
};

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_
