// The pool of contacts for taps.
#ifndef SLOTS_MULTIPOINT_SLOT_MANAGER_H_
#define SLOTS_MULTIPOINT_SLOT_MANAGER_H_

#include <array>

#include "slots/slot_manager.h"

namespace taviinputmanager {

// A contact is identified by its position, not by who requested it: press and release are paired by comparing points,
// exactly. Points are fractions of the display. Commands are about the slot used last; -1 before that.
class MultipointSlotManager final : public SlotManager {
 public:
  static MultipointSlotManager* GetInstance() {
    static MultipointSlotManager instance;
    return &instance;
  }

  bool HasTouch() const override;
  LineBuffer PressLine() override;
  // Frees every slot. Points stay, so that a tap at a previous point gets its previous slot.
  void Reset() override;

  // After each of these, the caller sends UpdateLine, but only if it returned true.

  // Takes the slot that has this point, in use or not; otherwise the first free one. False if all are in use.
  bool PressAt(double x, double y);
  // Sets the point of a given slot. False for a slot of another pool.
  bool SetSlot(int id, double x, double y);
  // Frees the slot that has this point, in use or not. False if none has it.
  bool ReleaseAt(double x, double y);
  // Frees a given slot. False for a slot of another pool.
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
  // Null for a slot of another pool.
  Entry* EntryOf(int id);
  const Entry* EntryOf(int id) const;
  void Select(const Entry* entry);

  std::array<Entry, kSlotCount> entries_;  // entry i is slot kFirstSlot + i
};

}  // namespace taviinputmanager

#endif  // SLOTS_MULTIPOINT_SLOT_MANAGER_H_
