// What the input layer knows of itself: its mode, its displays, the keys that are down, and how all of it is reset.
#ifndef CORE_INPUT_STATUS_MANAGER_H_
#define CORE_INPUT_STATUS_MANAGER_H_

#include <atomic>
#include <mutex>

#include <QMap>
#include <QMutex>
#include <QString>

#include "core/code_set.h"
#include "keymap/config_key.h"
#include "taviinputmanager/types.h"

namespace tavikeymapmanager {
struct KeymapConfig;
}

namespace taviinputmanager {

struct InputManagerCallbacks;

// How much ResetGuestState clears.
enum ResetMode : int {
  kResetInput = 0,  // fingers and keys
  kResetFull = 1,   // and taps, and the macros that wait for a release
  kResetAll = 2,    // everything that the live display can hold
  kResetMacro = 4,  // the macro slots alone
};

// Main thread, but for the reset of mode kResetMacro, which a replay makes on its own thread when it ends, for the
// status and for the transparency of displays, which any thread may ask.
class InputStatusManager {
 public:
  static InputStatusManager* GetInstance() {
    static InputStatusManager instance;
    return &instance;
  }

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  // ---- Status ----
  InputStatus GetStatus() const { return status_.load(std::memory_order_relaxed); }
  // Stores both and tells the host, also without a change. `message` is the name of the key that caused it.
  void SetStatus(InputStatus status, const QString& message);
  // The same, by the number of the status.
  void SetStatus(int status, const QString& message) { SetStatus(static_cast<InputStatus>(status), message); }

  // ---- Keymap and displays ----
  // Takes over what a fresh keymap means for the status, resets everything on the display held so far, and moves on to
  // `display`. `extra` is kept and not read.
  void ResetForKeymap(const tavikeymapmanager::KeymapConfig* config, const QString& package, const QString& extra,
                      bool has_path, int mode, int display);
  // Resets everything on the present display and moves on to `display`. What comes in while the present one is swept
  // belongs to the next.
  void UpdateDisplayId(int display);
  int GetDisplayId() const { return display_id_.load(std::memory_order_relaxed); }
  int GetReplayDisplayId() const { return replay_display_id_; }
  void SetReplayDisplayId(int display) { replay_display_id_ = display; }
  void SetForceTransparent(int display, bool on);
  bool IsDisplayForceTransparent(int display) const {
    return has_force_transparent_.load(std::memory_order_acquire) && WasMadeTransparent(display);
  }

  const QString& GetPackageName() const { return package_name_; }
  // A keymap path was in effect at the last load.
  bool HasKeymap() const { return has_keymap_; }
  // The setting simulate_mode of the last keymap.
  int GetMode() const { return mode_; }
  // The key of the keymap's Staring item; unset when there is none. A joystick key is known by its text, any other by
  // its codes.
  const tavikeymapmanager::ConfigKey& GetStaringKey() const { return staring_key_; }

  // ---- Keys that are down in the guest ----
  void AddHeldKey(int code) { held_keys_.Add(code); }
  void RemoveHeldKey(int code) { held_keys_.Remove(code); }
  // Releases them on the present display, in ascending order, and forgets them.
  void ReleaseHeldKeys();
  // The same record for the display that replays go to.
  CodeSet& ReplayHeldKeys() { return replay_held_keys_; }
  // Lifts all fingers on that display, then releases these keys and forgets them.
  void ReleaseReplayInput();

  // ---- Reset ----
  // Leaves view control and observing, tells the host, and resets. `mode` is a ResetMode; display 0 is the present one.
  void ResetInputStatus(int mode, int display);
  // Clears the managers and simulators first, so that no later update can press again, then sweeps the guest. `mode`
  // and `display` as above. What is pressed from inside the sweep stays pressed.
  void ResetGuestState(int mode, int display);
  // The sweep. 0: slots 0 to 10; 1: 0 to 17; 2: all at once; 3: nothing; 4: 18 to 25.
  void ReleaseSlots(int mode, int display);

  // ---- Switches of macros ----
  bool IsInputHold() const { return input_hold_; }
  bool ToggleInputHold();
  double GetSwipeholdFactor() const { return swipehold_factor_; }
  // Between 1.0 and `value`; the walk follows at once.
  void ToggleSwipeholdFactor(double value);

 private:
  InputStatusManager() = default;

  bool WasMadeTransparent(int display) const;
  // Both halves of a reset of everything on the present display, and between them the move to the next.
  void ResetAndMoveTo(int display);
  // What a reset does before the sweep, but for that of macros.
  void ForgetInput(int mode);
  void SweepGuest(int mode, int display);
  void LeaveModes();
  void SetStatusMessage(const QString& message);
  QString StatusMessage() const;
  void NotifyStatus() const;
  void ReleaseSlotRange(int first, int last, int display);
  void TakeStaringKey(const tavikeymapmanager::KeymapConfig* config);

  std::atomic<InputStatus> status_{InputStatus::Normal};
  std::atomic<InputManagerCallbacks*> callbacks_{nullptr};  // the host's
  mutable std::mutex status_message_mutex_;                 // guards status_message_
  QString status_message_;                                  // kept when a keymap has no Staring item
  CodeSet held_keys_;
  CodeSet replay_held_keys_;
  mutable QMutex force_transparent_mutex_;  // guards force_transparent_ only
  QMap<int, bool> force_transparent_;
  std::atomic<bool> has_force_transparent_{false};  // some display was made so: spares events the lock until then
  QString package_name_;
  QString extra_;
  bool has_keymap_ = false;
  tavikeymapmanager::ConfigKey staring_key_;
  std::atomic<int> display_id_{0};
  int replay_display_id_ = 0;
  bool input_hold_ = false;
  double swipehold_factor_ = 1.0;
  int mode_ = 0;
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_STATUS_MANAGER_H_
