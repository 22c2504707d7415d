#ifndef HOST_WINDOW_CONTROLS_STALE_REPEATS_H_
#define HOST_WINDOW_CONTROLS_STALE_REPEATS_H_

#include <QObject>
#include <QSet>

class QKeyEvent;

namespace tavi {

// Keys that were pressed over the guest and are still held repeat into the widget that gets the focus next: the file
// name of a dialog would begin with a row of them. This filter drops such repeats, from all events of the application,
// until the keys are released.
//
// Main thread.
class StaleRepeats : public QObject {
  Q_OBJECT

 public:
  explicit StaleRepeats(QObject* parent = nullptr);

  // From now on the repeats of these keys, given as native scan codes, are dropped. An empty list drops nothing.
  void Take(const QSet<quint32>& held);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsStale(const QKeyEvent& event);

  QSet<quint32> held_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_STALE_REPEATS_H_
