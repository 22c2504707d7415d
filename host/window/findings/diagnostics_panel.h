#ifndef HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_
#define HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_

#include <QFrame>
#include <QString>

#include "host/window/findings/placed_finding.h"

class QLabel;
class QScrollArea;

namespace tavi {

class KeymapSource;

// Tells in place what is wrong with the keymap in use. Hidden while there is nothing to tell.
class DiagnosticsPanel : public QFrame {
  Q_OBJECT

 public:
  // `subject` is what the keymap is called in a sentence that begins with it.
  explicit DiagnosticsPanel(const QString& subject, QWidget* parent = nullptr);

  // `placed` are those of its findings that are marked on the guest's screen.
  void Show(const KeymapSource& source, const Findings& findings);
  // From now on the panel is so high, whatever there is to tell: what lies below must not move under the pointer. 0 is
  // hidden; kOwnHeight: as high as what it tells, as at first.
  void KeepHeight(int height);
  static constexpr int kOwnHeight = -1;
  static constexpr int kEditingHeight = 72;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 Q_SIGNALS:
  // A finding that is marked was clicked at.
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
  bool has_errors_ = false;     // of the file as it is
  bool keeps_earlier_ = false;  // and an earlier state is in use
  int kept_height_ = kOwnHeight;
};

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_DIAGNOSTICS_PANEL_H_
