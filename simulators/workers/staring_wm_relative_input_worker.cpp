#include "simulators/workers/staring_wm_relative_input_worker.h"

namespace taviinputmanager {

StaringWmRelativeInputWorker* StaringWmRelativeInputWorker::GetInstance() {
  static StaringWmRelativeInputWorker instance;
  return &instance;
}

void StaringWmRelativeInputWorker::SetHandyStaringSensitivity(double /*x*/, double /*y*/) {}

}  // namespace taviinputmanager
