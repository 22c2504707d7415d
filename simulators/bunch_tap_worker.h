// The rhythm of a run of rapid taps, whatever it is that is tapped.
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
// A tap takes two periods; one that lasts for n taps finishes with the release of the last, 2n - 1 periods after its
// beginning, or with its first press where n is 0.
//
// Lives for one run, on a thread of its own. Touches its own fields alone and reports by signals of the classes derived
// from it, which say what is tapped.
class BunchTapWorker : public QObject {
  Q_OBJECT

 public:
  // The key text that stops every run of a held key, whatever the key.
  inline static const QString kForceStop = QStringLiteral("force_stop");

 protected:
  // Of a run with a fixed number of taps, in ms.
  static constexpr int kOneOffPeriodMs = 25;

  // In ms, from taps per second; 0 is as often as the thread allows. Nothing for a frequency that has no period: 0 or
  // less.
  static std::optional<int> PeriodOfFrequency(int taps_per_second);

  // Without a period the first press is all. Without `taps` the run goes on until it is stopped; a number below 0 is
  // never reached.
  BunchTapWorker(std::optional<int> period_ms, std::optional<int> taps);

  // Presses at once. `on_timeout` is called at each further beat and is to call Beat.
  void Begin(const std::function<void()>& on_timeout);
  // The next half of a tap. At the end of the last it reports the end, and the timer runs on: no tick reaches a worker
  // that has given itself up.
  void Beat();
  void StopTimer();

  virtual void EmitPressed() = 0;
  virtual void EmitReleased() = 0;
  virtual void EmitFinished() = 0;

 private:
  const std::optional<int> period_ms_;
  const std::optional<int> taps_;
  QTimer* timer_ = nullptr;  // a child, made where the run is
  int count_ = 0;            // half taps so far; odd while the finger is down
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_BUNCH_TAP_WORKER_H_
