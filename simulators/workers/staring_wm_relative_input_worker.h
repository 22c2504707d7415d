// The view finger of the captured mouse.
#ifndef SIMULATORS_WORKERS_STARING_WM_RELATIVE_INPUT_WORKER_H_
#define SIMULATORS_WORKERS_STARING_WM_RELATIVE_INPUT_WORKER_H_

#include "core/event_handler.h"

namespace taviinputmanager {

class StaringWmRelativeInputWorker : public EventHandler {
 public:
  static StaringWmRelativeInputWorker* GetInstance();

  // Factors on the view sensitivity of each axis; 1 leaves it.
  void SetHandyStaringSensitivity(double x, double y);

 private:
  StaringWmRelativeInputWorker() = default;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_WORKERS_STARING_WM_RELATIVE_INPUT_WORKER_H_
