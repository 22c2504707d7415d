// The fingers on the screen, as a multi-touch device with slots (protocol type B) reports them.
#ifndef GUEST_TRANSLATION_SCREEN_CONTACTS_H_
#define GUEST_TRANSLATION_SCREEN_CONTACTS_H_

#include <bitset>
#include <string>

#include "guest/line/guest_options.h"
#include "guest/translation/device_description.h"
#include "guest/translation/event_frame.h"

namespace taviguest {

struct GuestLine;

// Not bound to a thread. A tracking id is sent for a finger that comes down and not for one that moves, whatever id its
// line has. A finger that is up cannot go up again: no event.
class ScreenContacts {
 public:
  explicit ScreenContacts(const GuestOptions& options);

  // One frame for the line, which is one of the slots. What of the line could not be played, for people: it names a
  // slot or a tracking id that there is not, or is one finger too many. The other contacts of the line are reported all
  // the same.
  std::string Report(const GuestLine& line, KernelEvents* events);

  // One frame in which all fingers go up; nothing when none is down.
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
  std::bitset<kSlotCount> refused_;  // slots that the line has down, and there was no room for them; that was told
  std::string problem_;              // of the line that is being reported
};

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_SCREEN_CONTACTS_H_
