// A contact on the guest's screen: one of its numbered touch slots, and its position.
#ifndef SLOTS_SLOT_MANAGER_H_
#define SLOTS_SLOT_MANAGER_H_

#include <QString>

#include "core/line_buffer.h"

namespace taviinputmanager {

class DisplayGeometry;

// Builds lines and sends nothing: the caller sends. An empty line means that there is nothing to send.
//
// Main thread only. The manager is the only record of whether its contact is down; the guest cannot be asked. Each
// fixed slot has one owner at a time; a second user of a slot moves the same contact.
class SlotManager {
 public:
  // No contact; every command is empty.
  static constexpr int kNoSlot = -1;

  SlotManager(const SlotManager&) = delete;
  SlotManager& operator=(const SlotManager&) = delete;
  virtual ~SlotManager();

  // Whether the contact should currently be down.
  virtual bool HasTouch() const = 0;
  // Presses or moves to the stored position.
  virtual LineBuffer PressLine() = 0;
  // Clears the contact. The guest's contact stays as it is until a release is sent.
  virtual void Reset() = 0;

  // The line that makes the guest match this manager: a press or a release. Empty if the host, when asked for its
  // display, released the contact.
  LineBuffer UpdateLine();
  // In window pixels.
  LineBuffer PressLineAt(int x, int y) const;
  // In fractions of the display.
  LineBuffer RelativePressLineAt(double x, double y) const;
  LineBuffer ReleaseLine() const;

  // The same, for callers that keep the command.
  QString BuildPressCommand() { return PressLine(); }
  QString BuildUpdateCommand() { return UpdateLine(); }
  QString BuildPressCommandAt(int x, int y) const { return PressLineAt(x, y); }
  QString BuildRelativePressCommandAt(double x, double y) const { return RelativePressLineAt(x, y); }
  QString BuildReleaseCommand() const { return ReleaseLine(); }

  int GetSlotId() const { return slot_id_; }

 protected:
  explicit SlotManager(int slot_id);

  // Whether the contact of slot `id` is down, for a manager of several.
  virtual bool IsDown(int /*id*/) const { return HasTouch(); }
  const DisplayGeometry* Display() const { return display_; }
  void SetSlotId(int slot_id) { slot_id_ = slot_id; }

 private:
  // Empty if contact `id` was released while the line was made.
  LineBuffer CheckedPressLine(int id);

  int slot_id_;
  const DisplayGeometry* display_;  // the singleton
};

}  // namespace taviinputmanager

#endif  // SLOTS_SLOT_MANAGER_H_
