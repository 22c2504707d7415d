#include "guest/translation/screen_contacts.h"

#include <linux/input.h>
#include <utility>

#include "guest/line/guest_line.h"

namespace taviguest {

using Kind = GuestLine::Kind;

namespace {

constexpr size_t kFieldsOfContact = 4;  // slot, tracking id, x, y
constexpr char kNoSuchSlot[] = "there is no such slot";

bool IsSlot(int number) { return number >= 0 && number < kSlotCount; }

bool IsTrackingId(int number) { return number >= 0 && number <= kLastTrackingId; }

size_t MostFingers(GuestSystem system) { return system == GuestSystem::kAndroid ? kMostAndroidFingers : kSlotCount; }

}  // namespace

ScreenContacts::ScreenContacts(const GuestOptions& options)
    : surface_(options.surface), most_fingers_(MostFingers(options.system)) {}

std::string ScreenContacts::Report(const GuestLine& line, KernelEvents* events) {
  EventFrame frame(KernelDevice::kScreen);
  const bool was_touched = down_.any();
  ReportContacts(line, &frame);
  const bool is_touched = down_.any();
  if (is_touched != was_touched) frame.Key(BTN_TOUCH, is_touched);
  Append(frame.Close(), events);
  return std::exchange(problem_, {});
}

KernelEvents ScreenContacts::LiftAll() {
  KernelEvents events;
  Report({Kind::kSlotReleaseAll, {}, {}}, &events);
  return events;
}

void ScreenContacts::ReportContacts(const GuestLine& line, EventFrame* frame) {
  switch (line.kind) {
    case Kind::kSlotPress: return Press(line, 0, 4, frame);
    case Kind::kMultiPress: return PressEach(line, frame);
    case Kind::kSlotReleaseAll: return ReleaseAll(frame);
    default: return ReleaseEach(line, frame);
  }
}

// The tracking id follows the slot.
void ScreenContacts::Press(const GuestLine& line, size_t slot_index, size_t place_index, EventFrame* frame) {
  const int slot = line.Integer(slot_index);
  const int tracking_id = line.Integer(slot_index + 1);
  if (!IsSlot(slot) || !IsTrackingId(tracking_id)) {
    problem_ = kNoSuchSlot;
    return;
  }
  if (!HasRoomFor(slot)) return;
  const Point point = PlaceOnSurface(line.PointAt(place_index), surface_);
  frame->Axis(ABS_MT_SLOT, slot);
  if (!down_[slot]) frame->Axis(ABS_MT_TRACKING_ID, tracking_id);
  down_.set(slot);
  frame->Axis(ABS_MT_POSITION_X, point.x).Axis(ABS_MT_POSITION_Y, point.y);
}

// A contact without a free place is reported once, not with each of its moves.
bool ScreenContacts::HasRoomFor(int slot) {
  if (down_[slot] || down_.count() < most_fingers_) {
    refused_.reset(slot);
    return true;
  }
  if (!refused_[slot]) {
    problem_ = "more than " + std::to_string(most_fingers_) + " fingers at once are not supported; ignored";
  }
  refused_.set(slot);
  return false;
}

void ScreenContacts::PressEach(const GuestLine& line, EventFrame* frame) {
  for (size_t i = 0; i < line.numbers.size(); i += kFieldsOfContact) Press(line, i, i + 2, frame);
}

void ScreenContacts::Release(int slot, EventFrame* frame) {
  if (!IsSlot(slot)) {
    problem_ = kNoSuchSlot;
    return;
  }
  refused_.reset(slot);
  if (!down_[slot]) return;  // already up, like most slots that a reset sweeps
  down_.reset(slot);
  frame->Axis(ABS_MT_SLOT, slot).Axis(ABS_MT_TRACKING_ID, kNoTrackingId);
}

void ScreenContacts::ReleaseEach(const GuestLine& line, EventFrame* frame) {
  for (size_t i = 0; i < line.numbers.size(); ++i) Release(line.Integer(i), frame);
}

void ScreenContacts::ReleaseAll(EventFrame* frame) {
  refused_.reset();
  for (int slot = 0; slot < kSlotCount; ++slot) Release(slot, frame);
}

}  // namespace taviguest
