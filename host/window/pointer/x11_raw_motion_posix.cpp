#include "host/window/pointer/x11_raw_motion.h"
#include "host/window/pointer/x11_reply.h"

namespace tavi {

namespace {

// Qt may have announced a version of its own to the server, and announcing a lower one would be an error. Since 2.1,
// raw events arrive during grabs and without one.
constexpr uint16_t kMajor = 2;
constexpr uint16_t kMinor = 4;
constexpr uint16_t kLeastMinor = 1;

constexpr int kAxes = 2;  // the first two valuators of a pointing device are x and y

double NumberOf(const xcb_input_fp3232_t& value) { return value.integral + value.frac / 4294967296.0; }

}  // namespace

bool TellsWays(const xcb_input_xi_device_info_t& device) {
  auto classes = xcb_input_xi_device_info_classes_iterator(&device);
  for (; classes.rem > 0; xcb_input_device_class_next(&classes)) {
    if (classes.data->type != XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR) continue;
    const auto* axis = reinterpret_cast<const xcb_input_valuator_class_t*>(classes.data);
    if (axis->number < kAxes) return axis->mode == XCB_INPUT_VALUATOR_MODE_RELATIVE;
  }
  return false;
}

// Only the valuators in the mask have a value.
QPointF WayOf(const xcb_input_raw_motion_event_t& event) {
  if (event.valuators_len == 0) return {};
  const uint32_t mask = *xcb_input_raw_button_press_valuator_mask(&event);
  const xcb_input_fp3232_t* value = xcb_input_raw_button_press_axisvalues_raw(&event);
  const double x = mask & 1U ? NumberOf(*value++) : 0;
  const double y = mask & 2U ? NumberOf(*value) : 0;
  return {x, y};
}

QString X11RawMotion::Start() {
  known_mice_.clear();
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_input_id);
  if (!extension || !extension->present) {
    return QStringLiteral(
        "This X server has no XInput 2, which reports how the mouse moves: view control does not work.");
  }
  opcode_ = extension->major_opcode;
  const X11Reply<xcb_input_xi_query_version_reply_t> version(
      xcb_input_xi_query_version_reply(connection_, xcb_input_xi_query_version(connection_, kMajor, kMinor), nullptr));
  if (!version || version->major_version < kMajor || version->minor_version < kLeastMinor) {
    return QStringLiteral(
        "This X server has no XInput 2.1, which reports how the mouse moves: view control does not work.");
  }
  Select(XCB_INPUT_XI_EVENT_MASK_RAW_MOTION);
  return {};
}

void X11RawMotion::Stop() { Select(0); }

void X11RawMotion::Select(uint32_t events) {
  const struct {
    xcb_input_event_mask_t head;
    uint32_t events;
  } mask = {{XCB_INPUT_DEVICE_ALL_MASTER, 1}, events};
  xcb_input_xi_select_events(connection_, root_, 1, &mask.head);
}

QPointF X11RawMotion::TakeEvent(const xcb_generic_event_t& event) {
  if ((event.response_type & ~0x80) != XCB_GE_GENERIC) return {};
  const auto& motion = reinterpret_cast<const xcb_input_raw_motion_event_t&>(event);
  if (motion.extension != opcode_ || motion.event_type != XCB_INPUT_RAW_MOTION) return {};
  return IsMouse(motion.sourceid) ? WayOf(motion) : QPointF();
}

bool X11RawMotion::IsMouse(xcb_input_device_id_t device) {
  const auto known = known_mice_.constFind(device);
  if (known != known_mice_.constEnd()) return *known;
  const X11Reply<xcb_input_xi_query_device_reply_t> reply(
      xcb_input_xi_query_device_reply(connection_, xcb_input_xi_query_device(connection_, device), nullptr));
  const bool is_mouse =
      reply && reply->num_infos > 0 && TellsWays(*xcb_input_xi_query_device_infos_iterator(reply.get()).data);
  known_mice_.insert(device, is_mouse);
  return is_mouse;
}

}  // namespace tavi
