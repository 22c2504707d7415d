#include "simulators/gamepad/vstick_left_stick_simulator.h"

namespace taviinputmanager {

namespace {

constexpr int kWorkerIndex = 2;

}  // namespace

VStickLeftStickSimulator* VStickLeftStickSimulator::GetInstance() {
  static VStickLeftStickSimulator instance;
  return &instance;
}

VStickLeftStickSimulator::VStickLeftStickSimulator() : VStickSimulator(kWorkerIndex) {}

}  // namespace taviinputmanager
