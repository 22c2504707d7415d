#include "host/play/event_feeder.h"

#include <algorithm>
#include <linux/input.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "guest/translation/typed_keys.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/reserved_keys.h"
#include "keymap/scan_codes.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using taviinputmanager::InputStatus;

namespace {

constexpr int kNotch = 120;  // of Qt, and of a high-resolution wheel
constexpr int kRepeat = 2;   // the value of a key repeat from the kernel

struct ButtonRow {
  int code;
  Qt::MouseButton button;
};

// With Qt's numbers under X11 and Wayland, so that one keymap works in the window and here.
constexpr ButtonRow kButtons[] = {
    {BTN_LEFT, Qt::LeftButton},   {BTN_RIGHT, Qt::RightButton},   {BTN_MIDDLE, Qt::MiddleButton},
    {BTN_SIDE, Qt::BackButton},   {BTN_EXTRA, Qt::ForwardButton}, {BTN_FORWARD, Qt::ExtraButton3},
    {BTN_BACK, Qt::ExtraButton4}, {BTN_TASK, Qt::ExtraButton5},
};

struct ModifierRow {
  int code;
  Qt::KeyboardModifier modifier;
};

constexpr ModifierRow kModifiers[] = {
    {KEY_LEFTCTRL, Qt::ControlModifier}, {KEY_RIGHTCTRL, Qt::ControlModifier}, {KEY_LEFTSHIFT, Qt::ShiftModifier},
    {KEY_RIGHTSHIFT, Qt::ShiftModifier}, {KEY_LEFTALT, Qt::AltModifier},       {KEY_RIGHTALT, Qt::AltModifier},
    {KEY_LEFTMETA, Qt::MetaModifier},    {KEY_RIGHTMETA, Qt::MetaModifier},
};

Qt::MouseButton ButtonOf(int code) {
  for (const ButtonRow& row : kButtons) {
    if (row.code == code) return row.button;
  }
  return Qt::NoButton;
}

bool IsViewSteered() {
  const int status = LiveHost::GetInstance()->InputStatus();
  return status == static_cast<int>(InputStatus::Staring) || status == static_cast<int>(InputStatus::Observing);
}

// As a window system reports it, because reserved keys are compared by that.
QKeyEvent WindowSystemEvent(int code, bool is_down, Qt::KeyboardModifiers modifiers) {
  return {is_down ? QEvent::KeyPress : QEvent::KeyRelease,
          0,
          modifiers,
          static_cast<quint32>(code + tavikeymapmanager::kX11KeyOffset),
          0,
          0};
}

}  // namespace

EventFeeder::EventFeeder(ReservedKeys* reserved, QObject* parent) : QObject(parent), reserved_(reserved) {}

void EventFeeder::Take(int device, const InputFrame& frame, bool is_fed) {
  Motion motion;
  int coarse_notches = 0;
  bool has_fine_wheel = false;
  for (const DeviceEvent& event : frame) {
    if (event.type != EV_REL) continue;
    switch (event.code) {
      case REL_X: motion.dx += event.value; break;
      case REL_Y: motion.dy += event.value; break;
      case REL_WHEEL: coarse_notches += event.value; break;
      case REL_WHEEL_HI_RES:
        motion.wheel += event.value;
        has_fine_wheel = true;
        break;
      default: break;
    }
  }
  if (!has_fine_wheel) motion.wheel = coarse_notches * kNotch;
  if (is_fed) Move(motion);
  for (const DeviceEvent& event : frame) {
    if (event.type == EV_KEY && event.value != kRepeat) is_fed = TakeKey(device, event, is_fed) && is_fed;
  }
  if (is_fed) Turn(motion.wheel);
}

// A key that is down on two keyboards is one key, which is down until it is released on both.
bool EventFeeder::TakeKey(int device, const DeviceEvent& event, bool is_fed) {
  std::vector<int>& devices = keys_[event.code].devices;
  const auto found = std::find(devices.begin(), devices.end(), device);
  const bool is_down = event.value != 0;
  if (is_down == (found != devices.end())) return true;
  if (is_down) {
    devices.push_back(device);
    return devices.size() > 1 || Press(event.code, is_fed);
  }
  devices.erase(found);
  if (devices.empty()) Release(event.code);
  return true;
}

bool EventFeeder::Press(int code, bool is_fed) {
  QKeyEvent event = WindowSystemEvent(code, true, Modifiers());
  if (ButtonOf(code) == Qt::NoButton && reserved_->Take(&event)) return false;
  keys_[code].is_told = is_fed;
  if (is_fed) Tell(code, true);
  return true;
}

void EventFeeder::Release(int code) {
  QKeyEvent event = WindowSystemEvent(code, false, Modifiers());
  if (ButtonOf(code) == Qt::NoButton) reserved_->Take(&event);
  if (std::exchange(keys_[code].is_told, false)) Tell(code, false);
}

void EventFeeder::Tell(int code, bool is_down) {
  const Qt::MouseButton button = ButtonOf(code);
  if (button != Qt::NoButton) return SendButton(button, is_down);
  SendKey(code, is_down);
}

void EventFeeder::SendKey(int code, bool is_down) {
  const NativeKey& native = NativeOf(code);
  if (native.scancode == 0) return;  // no keymap can name it
  QKeyEvent event(is_down ? QEvent::KeyPress : QEvent::KeyRelease, 0, Modifiers(), native.scancode, native.virtual_key,
                  0, TextOf(code));
  InputPort::GetInstance()->Send(&event);
}

void EventFeeder::SendButton(Qt::MouseButton button, bool is_down) {
  const QPointF place = Pointer();
  QMouseEvent event(is_down ? QEvent::MouseButtonPress : QEvent::MouseButtonRelease, place, place, place, button,
                    Buttons(), Modifiers());
  InputPort::GetInstance()->Send(&event);
}

void EventFeeder::Move(const Motion& motion) {
  if (motion.dx == 0 && motion.dy == 0) return;
  if (IsViewSteered()) return InputPort::GetInstance()->SendRelative(motion.dx, motion.dy);
  const QSizeF size = LiveHost::GetInstance()->ViewSize();
  place_.setX(qBound(0.0, place_.x() + motion.dx * speed_ / size.width(), 1.0));
  place_.setY(qBound(0.0, place_.y() + motion.dy * speed_ / size.height(), 1.0));
  const QPointF place = Pointer();
  QMouseEvent event(QEvent::MouseMove, place, place, place, Qt::NoButton, Buttons(), Modifiers());
  InputPort::GetInstance()->Send(&event);
}

// For an item on the wheel each event is a notch, so parts of a notch are added up. A remainder is discarded when the
// wheel turns the other way.
void EventFeeder::Turn(int parts) {
  if (parts == 0) return;
  if ((parts > 0) != (turned_ > 0)) turned_ = 0;
  turned_ += parts;
  const int notches = turned_ / kNotch * kNotch;
  if (notches == 0) return;
  turned_ -= notches;
  const QPointF place = Pointer();
  QWheelEvent event(place, place, {}, {0, notches}, Buttons(), Modifiers(), Qt::NoScrollPhase, false);
  InputPort::GetInstance()->Send(&event);
}

void EventFeeder::Forget(int device) {
  InputFrame releases;
  for (int code = 0; code < KEY_CNT; ++code) releases.push_back({EV_KEY, code, 0});
  Take(device, releases, true);
}

void EventFeeder::LetGo() {
  for (Key& key : keys_) key.is_told = false;
  turned_ = 0;
}

// The last pixel is one less than the size.
QPointF EventFeeder::Pointer() const {
  const QSize size = LiveHost::GetInstance()->ViewSize();
  return {qMin(place_.x() * size.width(), size.width() - 1.0), qMin(place_.y() * size.height(), size.height() - 1.0)};
}

// In the US layout, which the guest uses: there is no window system that would know another. A key is not text while a
// modifier makes it a command.
QString EventFeeder::TextOf(int code) const {
  if (!LiveHost::GetInstance()->HasTextField()) return {};
  const Qt::KeyboardModifiers modifiers = Modifiers();
  if ((modifiers & ~Qt::ShiftModifier) != 0) return {};
  const char character = taviguest::CharacterOfKey(code, modifiers.testFlag(Qt::ShiftModifier));
  return character == 0 ? QString() : QString(QLatin1Char(character));
}

Qt::KeyboardModifiers EventFeeder::Modifiers() const {
  Qt::KeyboardModifiers modifiers;
  for (const ModifierRow& row : kModifiers) {
    if (IsDown(row.code)) modifiers |= row.modifier;
  }
  return modifiers;
}

Qt::MouseButtons EventFeeder::Buttons() const {
  Qt::MouseButtons buttons;
  for (const ButtonRow& row : kButtons) {
    if (keys_[row.code].is_told) buttons |= row.button;
  }
  return buttons;
}

// Looked up once for each key, because finding the name takes a while.
const NativeKey& EventFeeder::NativeOf(int code) {
  auto native = natives_.find(code);
  if (native == natives_.end()) {
    native = natives_.insert(code, NativeKeyOf(WindowSystemEvent(code, true, Qt::NoModifier)));
  }
  return *native;
}

}  // namespace tavi
