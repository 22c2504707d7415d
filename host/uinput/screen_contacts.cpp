#include "host/uinput/screen_contacts.h"

#include <linux/input.h>

#include "host/guest/guest_line.h"
#include "host/guest/guest_model.h"
#include "host/uinput/device_description.h"

namespace tavi {

using Kind = GuestLine::Kind;

namespace {

constexpr int kFieldsOfContact = 4;  // slot, tracking id, x, y
constexpr int kNoTrackingId = -1;    // the finger of the slot went up

bool IsSlot(int number) { return number >= 0 && number < kGuestSlotCount; }

}  // namespace

bool ScreenContacts::Report(const GuestLine& line, KernelEvents* events) {
  EventFrame frame(KernelDevice::kScreen);
  const bool was_touched = !down_.empty();
  const bool is_understood = ReportContacts(line, &frame);
  const bool is_touched = !down_.empty();
  if (is_touched != was_touched) frame.Key(BTN_TOUCH, is_touched);
  *events += frame.Close();
  return is_understood;
}

bool ScreenContacts::ReportContacts(const GuestLine& line, EventFrame* frame) {
  switch (line.kind) {
    case Kind::kSlotPress: return Press(line.Integer(0), line.Integer(1), line.PointAt(4), frame);
    case Kind::kMultiPress: return PressEach(line, frame);
    case Kind::kSlotReleaseAll: return ReleaseAll(frame);
    default: return ReleaseEach(line, frame);
  }
}

bool ScreenContacts::Press(int slot, int tracking_id, const QPoint& place, EventFrame* frame) {
  if (!IsSlot(slot) || tracking_id < 0 || tracking_id > kLastTrackingId) return false;
  const QPoint point = PlaceOnSurface(place, surface_);
  frame->Axis(ABS_MT_SLOT, slot);
  if (down_.insert(slot).second) frame->Axis(ABS_MT_TRACKING_ID, tracking_id);
  frame->Axis(ABS_MT_POSITION_X, point.x()).Axis(ABS_MT_POSITION_Y, point.y());
  return true;
}

bool ScreenContacts::PressEach(const GuestLine& line, EventFrame* frame) {
  bool all = true;
  for (int i = 0; i < line.numbers.size(); i += kFieldsOfContact) {
    all = Press(line.Integer(i), line.Integer(i + 1), line.PointAt(i + 2), frame) && all;
  }
  return all;
}

bool ScreenContacts::Release(int slot, EventFrame* frame) {
  if (!IsSlot(slot)) return false;
  if (down_.erase(slot) == 0) return true;  // up already, as most slots that a reset sweeps
  frame->Axis(ABS_MT_SLOT, slot).Axis(ABS_MT_TRACKING_ID, kNoTrackingId);
  return true;
}

bool ScreenContacts::ReleaseEach(const GuestLine& line, EventFrame* frame) {
  bool all = true;
  for (int i = 0; i < line.numbers.size(); ++i) all = Release(line.Integer(i), frame) && all;
  return all;
}

bool ScreenContacts::ReleaseAll(EventFrame* frame) {
  const std::set<int> slots = down_;
  for (const int slot : slots) Release(slot, frame);
  return true;
}

QPoint PlaceOnSurface(const QPoint& place, const QSize& surface) {
  return {qBound(0, place.x(), surface.width() - 1), qBound(0, place.y(), surface.height() - 1)};
}

}  // namespace tavi
