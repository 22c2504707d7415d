// The contacts on the screen, as a multi-touch device with slots (protocol type B).
#ifndef GUEST_TRANSLATION_SCREEN_CONTACTS_H_
#define GUEST_TRANSLATION_SCREEN_CONTACTS_H_

#include <bitset>
#include <string>

#include "guest/line/guest_options.h"
#include "guest/translation/device_description.h"
#include "guest/translation/event_frame.h"

namespace taviguest {

struct GuestLine;

// Not bound to a thread. A tracking id is sent for a contact that is pressed and not for one that moves, whatever id
// its line has. Releasing a contact that is up sends no event.
class ScreenContacts {
 public:
  explicit ScreenContacts(const GuestOptions& options);

  // One frame for the line, which must be about slots. Returns what could not be played, for display: a slot or a
  // tracking id that does not exist, or one contact too many. The other contacts of the line are sent all the same.
  std::string Report(const GuestLine& line, KernelEvents* events);

  // One frame that releases all contacts; empty if none is down.
  KernelEvents LiftAll();

 private:
  void ReportContacts(const GuestLine& line, EventFrame* frame);
  void Press(const GuestLine& line, size_t slot_index, size_t place_index, EventFrame* frame);
  void PressEach(const GuestLine& line, EventFrame* frame);
  void Release(int slot, EventFrame* frame);
  void ReleaseEach(const GuestLine& line, EventFrame* frame);
  void ReleaseAll(EventFrame* frame);
  bool HasRoomFor(int slot);

  const Size surface_;
  const size_t most_fingers_;
  std::bitset<kSlotCount> down_;     // slots
  std::bitset<kSlotCount> refused_;  // slots that the line pressed without a free place; already reported
  std::string problem_;              // of the current line
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_SCREEN_CONTACTS_H_
