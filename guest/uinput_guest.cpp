#include "guest/uinput_guest.h"

#include <utility>

#include "guest/device/device_set.h"
#include "guest/guest_player.h"

namespace taviguest {

struct UinputGuest::Parts {
  explicit Parts(const GuestOptions& options) : devices(options), player(options, MakeOutlets()) {}

  GuestPlayer::Outlets MakeOutlets() {
    return {[this](const KernelEvents& events) { return devices.Write(events); },
            [this](const std::string& text) { problem += (problem.empty() ? "" : "; ") + text; }};
  }

  DeviceSet devices;
  std::string problem;  // of the call that is under way
  GuestPlayer player;
};

UinputGuest::UinputGuest(const GuestOptions& options) : parts_(std::make_unique<Parts>(options)) {}

UinputGuest::~UinputGuest() { LiftAll(); }

std::string UinputGuest::Open() { return parts_->devices.Open(); }

std::vector<DevicePlace> UinputGuest::Places() const { return parts_->devices.Places(); }

std::string UinputGuest::TakeLine(std::string_view line) {
  parts_->player.Play(LineByItself(line));
  return std::exchange(parts_->problem, {});
}

std::string UinputGuest::LiftAll() {
  parts_->player.LiftAll();
  return std::exchange(parts_->problem, {});
}

}  // namespace taviguest
