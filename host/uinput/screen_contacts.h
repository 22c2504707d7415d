// The fingers on the screen, as a multi-touch device with slots (protocol type B) reports them.
#ifndef HOST_UINPUT_SCREEN_CONTACTS_H_
#define HOST_UINPUT_SCREEN_CONTACTS_H_

#include <set>

#include <QPoint>
#include <QSize>

#include "host/uinput/event_frame.h"

namespace tavi {

struct GuestLine;

// Not bound to a thread. A tracking id is sent for a finger that comes down and not for one that moves, whatever id its
// line has. A finger that is up cannot go up again: no event.
class ScreenContacts {
 public:
  explicit ScreenContacts(const QSize& surface) : surface_(surface) {}

  // One frame for the line, which is one of the slots. False when it names a slot or a tracking id that there is not;
  // the other contacts of the line are reported all the same.
  bool Report(const GuestLine& line, KernelEvents* events);

 private:
  bool ReportContacts(const GuestLine& line, EventFrame* frame);
  bool Press(int slot, int tracking_id, const QPoint& place, EventFrame* frame);
  bool PressEach(const GuestLine& line, EventFrame* frame);
  bool Release(int slot, EventFrame* frame);
  bool ReleaseEach(const GuestLine& line, EventFrame* frame);
  bool ReleaseAll(EventFrame* frame);

  const QSize surface_;
  std::set<int> down_;  // slots
};

// The nearest place of the surface: positions up to and beyond its edge may come.
QPoint PlaceOnSurface(const QPoint& place, const QSize& surface);

}  // namespace tavi

#endif  // HOST_UINPUT_SCREEN_CONTACTS_H_
