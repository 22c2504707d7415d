#include "simulators/gamepad/vstick_right_stick_simulator.h"

namespace taviinputmanager {

namespace {

constexpr int kWorkerIndex = 3;

}  // namespace

VStickRightStickSimulator* VStickRightStickSimulator::GetInstance() {
  static VStickRightStickSimulator instance;
  return &instance;
}

VStickRightStickSimulator::VStickRightStickSimulator() : VStickSimulator(kWorkerIndex) {}

}  // namespace taviinputmanager
