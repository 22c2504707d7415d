// Starts runs of rapid taps, for all simulators that have them.
#ifndef SIMULATORS_BUNCH_TAP_RUN_H_
#define SIMULATORS_BUNCH_TAP_RUN_H_

#include "core/worker_thread.h"
#include "simulators/once.h"

namespace taviinputmanager {

// A friend of these simulators, because the workers are connected to their private slots. Each run has a thread of its
// own and takes ownership of `worker`; it is over when the worker reports its end.
class BunchTapRun {
 public:
  // Runs until the simulator's StopBunchTap names the worker's key.
  template <typename Simulator, typename Worker>
  static void StartContinue(Simulator* simulator, Worker* worker) {
    auto* run = new WorkerThread(worker);
    QObject::connect(run, &WorkerThread::started, worker, &Worker::Process);
    QObject::connect(simulator, &Simulator::StopBunchTap, worker, &Worker::Stop, Qt::QueuedConnection);
    QObject::connect(worker, &Worker::BunchTapFinished, run, &WorkerThread::quit, Qt::QueuedConnection);
    run->DeleteWorkerOn(worker, &Worker::BunchTapFinished);
    Connect(worker, &Worker::BunchTapPressed, simulator, &Simulator::OnBunchTapPressed);
    Connect(worker, &Worker::BunchTapReleased, simulator, &Simulator::OnBunchTapReleased);
    ConnectEnd(worker, &Worker::BunchTapFinished, simulator);
    run->Start();
  }

  // Ends by itself, or at the simulator's StopOneOffBunchTap.
  template <typename Simulator, typename Worker>
  static void StartOneOff(Simulator* simulator, Worker* worker) {
    auto* run = new WorkerThread(worker);
    QObject::connect(run, &WorkerThread::started, worker, &Worker::OneOffProcess);
    QObject::connect(simulator, &Simulator::StopOneOffBunchTap, worker, &Worker::Stop, Qt::QueuedConnection);
    QObject::connect(worker, &Worker::OneOffBunchTapFinished, run, &WorkerThread::quit, Qt::QueuedConnection);
    run->DeleteWorkerOn(worker, &Worker::OneOffBunchTapFinished);
    Connect(worker, &Worker::OneOffBunchTapPressed, simulator, &Simulator::OnBunchTapPressed);
    Connect(worker, &Worker::OneOffBunchTapReleased, simulator, &Simulator::OnBunchTapReleased);
    ConnectEnd(worker, &Worker::OneOffBunchTapFinished, simulator);
    run->Start();
  }

 private:
  template <typename Worker, typename Signal, typename Simulator, typename Slot>
  static void Connect(Worker* worker, Signal signal, Simulator* simulator, Slot slot) {
    QObject::connect(worker, signal, simulator, slot, Qt::QueuedConnection);
  }
  template <typename Worker, typename Signal, typename Simulator>
  static void ConnectEnd(Worker* worker, Signal signal, Simulator* simulator) {
    const auto end = Once([simulator](const auto&... what) { simulator->OnBunchTapFinished(what...); });
    QObject::connect(worker, signal, simulator, end, Qt::QueuedConnection);
  }
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_BUNCH_TAP_RUN_H_
