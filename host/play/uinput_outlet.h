#ifndef HOST_PLAY_UINPUT_OUTLET_H_
#define HOST_PLAY_UINPUT_OUTLET_H_

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "guest/uinput_guest.h"
#include "host/play/guest_outlet.h"

namespace tavi {

// Plays the lines on devices of this machine's kernel, in this process: a line is on its device before Send returns.
// Devices cannot change their size: new ones replace them once they exist.
class UinputOutlet : public GuestOutlet {
 public:
  // `tell` gets the errors, for display, on the thread of Send.
  explicit UinputOutlet(std::function<void(const QString&)> tell) : tell_(std::move(tell)) {}

  // Takes 0.3 s, the time that readers need to find the devices.
  QString Open(const QSize& surface) override;
  void Send(const char* data, int length) override;
  void LiftAll() override;
  void Close() override;
  QString State() const override { return {}; }

 private:
  const std::function<void(const QString&)> tell_;
  // Returns what could not be played of the line, for display, or an empty string.
  std::string Play(std::string_view line);

  std::mutex lock_;  // for the guest, never held during a callback: a replay ends on a thread of its own
  std::unique_ptr<taviguest::UinputGuest> guest_;
};

}  // namespace tavi

#endif  // HOST_PLAY_UINPUT_OUTLET_H_
