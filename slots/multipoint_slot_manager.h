// The pool of fingers for taps.
#ifndef SLOTS_MULTIPOINT_SLOT_MANAGER_H_
#define SLOTS_MULTIPOINT_SLOT_MANAGER_H_

#include <array>

#include "slots/slot_manager.h"

namespace taviinputmanager {

// A finger is known by where it is, not by who asked for it: press and release are paired by comparing points, exactly.
// Points are fractions of the display. The slot touched last is the one that the commands speak of; -1 before that.
class MultipointSlotManager final : public SlotManager {
 public:
  static MultipointSlotManager* GetInstance() {
    static MultipointSlotManager instance;
    return &instance;
  }

  bool HasTouch() const override;
  LineBuffer PressLine() override;
  // Frees every slot. Points stay, so that a tap at an old point gets its old slot back.
  void Reset() override;

  // After each of these, and only when it returns true, the caller sends UpdateLine.

  // The slot that has this point, in use or not; else the first free one. False when all are in use.
  bool PressAt(double x, double y);
  // Puts a point into a given slot. False for a slot of another's.
  bool SetSlot(int id, double x, double y);
  // Frees the slot that has this point, in use or not. False when none has it.
  bool ReleaseAt(double x, double y);
  // Frees a given slot. False for a slot of another's.
  bool ReleaseSlot(int id);

 private:
  static constexpr int kFirstSlot = 11;
  static constexpr int kSlotCount = 7;

  struct Entry {
    double x = 0;
    double y = 0;
    bool in_use = false;
  };

  MultipointSlotManager();

  bool IsDown(int id) const override;
  Entry* FindPoint(double x, double y);
  Entry* FindFree();
  // Null for a slot that is not of this pool.
  Entry* EntryOf(int id);
  const Entry* EntryOf(int id) const;
  void Select(const Entry* entry);

  std::array<Entry, kSlotCount> entries_;  // entry i is slot kFirstSlot + i
};

}  // namespace taviinputmanager

#endif  // SLOTS_MULTIPOINT_SLOT_MANAGER_H_
