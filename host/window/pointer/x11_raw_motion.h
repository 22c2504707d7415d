// What the mice of an X server report in XInput 2 events.
#ifndef HOST_WINDOW_POINTER_X11_RAW_MOTION_H_
#define HOST_WINDOW_POINTER_X11_RAW_MOTION_H_

#include <xcb/xcb.h>
#include <xcb/xinput.h>

#include <QHash>
#include <QPointF>
#include <QString>

namespace tavi {

// A mouse reports movement, a touch screen or a tablet positions.
bool TellsWays(const xcb_input_xi_device_info_t& device);

// The movement of an event as the device counted it, before the server's acceleration.
QPointF WayOf(const xcb_input_raw_motion_event_t& event);

// Switches the raw motion of an X server's mice on or off for a connection.
//
// Main thread.
class X11RawMotion {
 public:
  // `connection` is the application's, `root` the root window of its screen.
  X11RawMotion(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {}

  // Returns why the server does not support it, or an empty string.
  QString Start();
  void Stop();

  // The movement of an event; (0, 0) for events that are not relative movement.
  QPointF TakeEvent(const xcb_generic_event_t& event);

 private:
  void Select(uint32_t events);
  bool IsMouse(xcb_input_device_id_t device);

  xcb_connection_t* connection_;
  xcb_window_t root_;
  uint8_t opcode_ = 0;                             // of XInput's events
  QHash<xcb_input_device_id_t, bool> known_mice_;  // since Start: the number may belong to another device later
};

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_X11_RAW_MOTION_H_
