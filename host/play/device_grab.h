#ifndef HOST_PLAY_DEVICE_GRAB_H_
#define HOST_PLAY_DEVICE_GRAB_H_

#include <QString>

namespace tavi {

class PhysicalDevice;

// Keeps a device from all other readers while that is wanted.
//
//   free --- wanted ---> waiting (a key is down) --- all is up ---> held
//     \----- wanted, nothing is down ---------------------------->/
//   any  --- not wanted ---> free
//
// A device is never grabbed while a key is down: other readers would not see its release, and for them it would be down
// as long as the grab lasts. If another program has grabbed the device, the grab is refused, and Update retries it.
class DeviceGrab {
 public:
  enum class State { kFree, kWaiting, kRefused, kHeld };

  // `device` outlives this object.
  explicit DeviceGrab(PhysicalDevice* device) : device_(device) {}

  void SetWanted(bool wanted);
  // Call it after each frame of the device, and from time to time.
  void Update();

  State GetState() const { return state_; }
  // Why it was refused, for display; empty in every other state.
  const QString& Problem() const { return problem_; }

 private:
  State Try();

  PhysicalDevice* const device_;
  bool is_wanted_ = false;
  State state_ = State::kFree;
  QString problem_;
};

}  // namespace tavi

#endif  // HOST_PLAY_DEVICE_GRAB_H_
