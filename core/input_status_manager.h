// The state of the input layer: its mode, its displays, the keys that are down; and its reset.
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

// How much ResetGuestState releases.
enum ResetMode : int {
  kResetInput = 0,  // contacts and keys
  kResetFull = 1,   // and taps, and the macros that wait for a release
  kResetAll = 2,    // everything that the current display can hold
  kResetMacro = 4,  // only the slots of macros
};

// Main thread, except: the reset with mode kResetMacro, which a replay performs on its own thread when it ends; and the
// status and the transparency of displays, which may be read on any thread.
class InputStatusManager {
 public:
  static InputStatusManager* GetInstance() {
    static InputStatusManager instance;
    return &instance;
  }

  void SetCallbacks(InputManagerCallbacks* callbacks) { callbacks_ = callbacks; }

  // ---- Status ----
  InputStatus GetStatus() const { return status_.load(std::memory_order_relaxed); }
  // Stores both and reports them to the host, even if unchanged. `message` is the name of the key that caused it.
  void SetStatus(InputStatus status, const QString& message);
  // The same, by the number of the status.
  void SetStatus(int status, const QString& message) { SetStatus(static_cast<InputStatus>(status), message); }

  // ---- Keymap and displays ----
  // Applies a new keymap to the status, resets everything on the previous display, and switches to `display`. `extra`
  // is stored but not used.
  void ResetForKeymap(const tavikeymapmanager::KeymapConfig* config, const QString& package, const QString& extra,
                      bool has_path, int mode, int display);
  // Resets everything on the current display and switches to `display`. Input that arrives while the current one is
  // swept belongs to the next.
  void UpdateDisplayId(int display);
  int GetDisplayId() const { return display_id_.load(std::memory_order_relaxed); }
  int GetReplayDisplayId() const { return replay_display_id_; }
  void SetReplayDisplayId(int display) { replay_display_id_ = display; }
  void SetForceTransparent(int display, bool on);
  bool IsDisplayForceTransparent(int display) const {
    return has_force_transparent_.load(std::memory_order_acquire) && WasMadeTransparent(display);
  }

  const QString& GetPackageName() const { return package_name_; }
  // Whether the last load had a keymap path.
  bool HasKeymap() const { return has_keymap_; }
  // The setting simulate_mode of the last keymap.
  int GetMode() const { return mode_; }
  // The key of the keymap's Staring item; unset if there is none. A gamepad key is identified by its text, any other by
  // its codes.
  const tavikeymapmanager::ConfigKey& GetStaringKey() const { return staring_key_; }

  // ---- Keys that are down in the guest ----
  void AddHeldKey(int code) { held_keys_.Add(code); }
  void RemoveHeldKey(int code) { held_keys_.Remove(code); }
  // Releases them on the current display, in ascending order, and clears the record.
  void ReleaseHeldKeys();
  // The same record for the display of replays.
  CodeSet& ReplayHeldKeys() { return replay_held_keys_; }
  // Releases all contacts on that display, then these keys, and clears the record.
  void ReleaseReplayInput();

  // ---- Reset ----
  // Leaves view control and observing, reports that to the host, and resets. `mode` is a ResetMode; display 0 is the
  // current one.
  void ResetInputStatus(int mode, int display);
  // Resets the managers and simulators first, so that no later update can press anything again, then sweeps the guest.
  // `mode` and `display` as above. What is pressed during the sweep stays pressed.
  void ResetGuestState(int mode, int display);
  // The slots that are swept. 0: slots 0 to 10; 1: 0 to 17; 2: all at once; 3: nothing; 4: 18 to 25.
  void ReleaseSlots(int mode, int display);

  // ---- Switches of macros ----
  bool IsInputHold() const { return input_hold_; }
  bool ToggleInputHold();
  double GetSwipeholdFactor() const { return swipehold_factor_; }
  // Between 1.0 and `value`; takes effect on the walk at once.
  void ToggleSwipeholdFactor(double value);

 private:
  InputStatusManager() = default;

  bool WasMadeTransparent(int display) const;
  // The two halves of a reset of everything on the current display; the switch to the next is between them.
  void ResetAndMoveTo(int display);
  // The part of a reset before the sweep, except that of macros.
  void ForgetInput(int mode);
  void SweepGuest(int mode, int display);
  void LeaveModes();
  void SetStatusMessage(const QString& message);
  QString StatusMessage() const;
  void NotifyStatus() const;
  void ReleaseSlotRange(int first, int last, int display);
  void TakeStaringKey(const tavikeymapmanager::KeymapConfig* config);

  std::atomic<InputStatus> status_{InputStatus::Normal};
  std::atomic<InputManagerCallbacks*> callbacks_{nullptr};  // owned by the host
  mutable std::mutex status_message_mutex_;                 // guards status_message_
  QString status_message_;                                  // kept if a keymap has no Staring item
  CodeSet held_keys_;
  CodeSet replay_held_keys_;
  mutable QMutex force_transparent_mutex_;  // guards only force_transparent_
  QMap<int, bool> force_transparent_;
  std::atomic<bool> has_force_transparent_{false};  // whether any display was set; until then events skip the lock
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
