#ifndef HOST_WINDOW_DIAGNOSTICS_PANEL_H_
#define HOST_WINDOW_DIAGNOSTICS_PANEL_H_

#include <QFrame>
#include <QString>

class QLabel;
class QScrollArea;

namespace tavikeymapmanager {
struct LoadResult;
}

namespace tavi {

// Tells in place what is wrong with the keymap in use. Hidden while there is nothing to tell.
class DiagnosticsPanel : public QFrame {
  Q_OBJECT

 public:
  // `subject` is what the keymap is called in a sentence that begins with it.
  explicit DiagnosticsPanel(const QString& subject, QWidget* parent = nullptr);

  // `keeps_earlier`: the file cannot be used, and an earlier state of it is used in its place.
  void Show(const tavikeymapmanager::LoadResult& keymap, bool keeps_earlier = false);

 private:
  const QString subject_;
  QLabel* title_;
  QLabel* findings_;
  QScrollArea* scroll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_DIAGNOSTICS_PANEL_H_
