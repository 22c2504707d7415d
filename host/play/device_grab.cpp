#include "host/play/device_grab.h"

#include "host/play/physical_device.h"

namespace tavi {

void DeviceGrab::SetWanted(bool wanted) {
  is_wanted_ = wanted;
  if (wanted) return Update();
  if (state_ == State::kHeld) device_->Ungrab();
  state_ = State::kFree;
  problem_.clear();
}

void DeviceGrab::Update() {
  if (is_wanted_ && state_ != State::kHeld) state_ = Try();
}

// Checked twice: a key may be pressed between the check and the grab.
DeviceGrab::State DeviceGrab::Try() {
  problem_.clear();
  if (device_->IsAnyKeyDown()) return State::kWaiting;
  problem_ = device_->Grab();
  if (!problem_.isEmpty()) return State::kRefused;
  if (!device_->IsAnyKeyDown()) return State::kHeld;
  device_->Ungrab();
  return State::kWaiting;
}

}  // namespace tavi
