// The timing of a run of rapid taps, whatever is tapped.
#ifndef SIMULATORS_BUNCH_TAP_WORKER_H_
#define SIMULATORS_BUNCH_TAP_WORKER_H_

#include <functional>
#include <optional>

#include <QObject>
#include <QString>

class QTimer;

namespace taviinputmanager {

//   Begin    period      period    period
//   press --- release --- press --- release --- ...        finished, which lifts what is down
//
// A tap takes two periods. A run of n taps finishes with the release of the last, 2n - 1 periods after its beginning,
// or with its first press if n is 0.
//
// Exists for one run, on a thread of its own. It uses only its own fields and reports by the signals of the derived
// classes, which define what is tapped.
class BunchTapWorker : public QObject {
  Q_OBJECT

 public:
  // The key text that stops every run of a held key, regardless of the key.
  inline static const QString kForceStop = QStringLiteral("force_stop");

 protected:
  // Of a run with a fixed number of taps, in ms.
  static constexpr int kOneOffPeriodMs = 25;

  // In ms, from taps per second; 0 means as often as the thread allows. Nothing for a frequency of 0 or less, which has
  // no period.
  static std::optional<int> PeriodOfFrequency(int taps_per_second);

  // Without a period there is only the first press. Without `taps` the run continues until it is stopped; a number
  // below 0 is never reached.
  BunchTapWorker(std::optional<int> period_ms, std::optional<int> taps);

  // Presses at once. `on_timeout` is called every further half tap and must call Beat.
  void Begin(const std::function<void()>& on_timeout);
  // The next half of a tap. After the last one it reports the end; the timer keeps running, but its ticks no longer
  // reach the finished worker.
  void Beat();
  void StopTimer();

  virtual void EmitPressed() = 0;
  virtual void EmitReleased() = 0;
  virtual void EmitFinished() = 0;

 private:
  const std::optional<int> period_ms_;
  const std::optional<int> taps_;
  QTimer* timer_ = nullptr;  // a child, created on the run's thread
  int count_ = 0;            // half taps so far; odd while the contact is down
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_BUNCH_TAP_WORKER_H_
