#ifndef HOST_WINDOW_DIAGNOSTICS_PANEL_H_
#define HOST_WINDOW_DIAGNOSTICS_PANEL_H_

#include <QFrame>

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
  explicit DiagnosticsPanel(QWidget* parent = nullptr);

  void Show(const tavikeymapmanager::LoadResult& keymap);

 private:
  QLabel* title_;
  QLabel* findings_;
  QScrollArea* scroll_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_DIAGNOSTICS_PANEL_H_
