#ifndef HOST_WINDOW_DIAGNOSTICS_PANEL_H_
#define HOST_WINDOW_DIAGNOSTICS_PANEL_H_

#include <QFrame>
#include <QString>
#include <QVector>

class QLabel;
class QScrollArea;

namespace tavi {

class KeymapSource;
struct PlacedFinding;

// Tells in place what is wrong with the keymap in use. Hidden while there is nothing to tell.
class DiagnosticsPanel : public QFrame {
  Q_OBJECT

 public:
  // `subject` is what the keymap is called in a sentence that begins with it.
  explicit DiagnosticsPanel(const QString& subject, QWidget* parent = nullptr);

  // `placed` are those of its findings that are marked on the guest's screen.
  void Show(const KeymapSource& source, const QVector<PlacedFinding>& placed);

 Q_SIGNALS:
  // A finding that is marked was clicked at.
  void FindingChosen(const QString& label);

 private:
  const QString subject_;
  QLabel* title_;
  QLabel* findings_;
  QScrollArea* scroll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_DIAGNOSTICS_PANEL_H_
