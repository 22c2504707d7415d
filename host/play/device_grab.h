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
// A grab is never taken while a key is down: the others would not hear that it comes up, and to them it would be down
// for as long as the grab lasts. Where another program has the device, it is refused, and tried again by Update.
class DeviceGrab {
 public:
  enum class State { kFree, kWaiting, kRefused, kHeld };

  // `device` outlives this.
  explicit DeviceGrab(PhysicalDevice* device) : device_(device) {}

  void SetWanted(bool wanted);
  // To be called behind each frame of the device, and now and then.
  void Update();

  State GetState() const { return state_; }
  // Why it was refused, for people; empty in every other state.
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
