#ifndef HOST_WINDOW_CONTROLS_STALE_REPEATS_H_
#define HOST_WINDOW_CONTROLS_STALE_REPEATS_H_

#include <QObject>
#include <QSet>

class QKeyEvent;

namespace tavi {

// Keys that were pressed over the guest and are still held repeat into whatever gets the focus: a dialog's file name
// would begin with a row of them. Until they are let go, such repeats are taken from all events of the application.
//
// Main thread.
class StaleRepeats : public QObject {
  Q_OBJECT

 public:
  explicit StaleRepeats(QObject* parent = nullptr);

  // From now on these keys, by native scan codes, are meant; none: everything passes.
  void Take(const QSet<quint32>& held);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsStale(const QKeyEvent& event);

  QSet<quint32> held_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_STALE_REPEATS_H_
