// The mouse side of the handler.
#include <typeinfo>

#include <QMouseEvent>

#include "core/input_status_manager.h"
#include "core/pixels.h"
#include "core/virtual_mouse_event.h"
#include "handlers/qt_keyboard_mouse_event_simulate_handler.h"
#include "keymap/config_item.h"
#include "keymap/keymap_functions.h"
#include "qt/mouse_events.h"
#include "simulators/view/staring_and_fire_event_simulator.h"
#include "simulators/walk/right_walk_event_simulator.h"
#include "slots/macro_slot_manager.h"
#include "slots/mouse_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;

namespace {

int CodeOf(Qt::MouseButton button) { return static_cast<int>(button); }

// The class is final and belongs to this library, so comparing the types' addresses is enough; operator== would compare
// their names.
const VirtualMouseEvent* AsVirtual(const QMouseEvent* event) {
  return &typeid(*event) == &typeid(VirtualMouseEvent) ? static_cast<const VirtualMouseEvent*>(event) : nullptr;
}

// The pointer of an event; 0 is the real mouse.
qint64 PointerOf(const QMouseEvent* event) {
  const VirtualMouseEvent* virtual_event = AsVirtual(event);
  return virtual_event ? virtual_event->slot_index : 0;
}

bool IsStaring() { return InputStatusManager::GetInstance()->GetStatus() == InputStatus::Staring; }

bool IsFire(const ConfigItem* item) { return item && item->type == tavikeymapmanager::keywords::kTypeFire; }

}  // namespace

bool QtKeyboardMouseEventSimulateHandler::IsMouseButtonMapped(QMouseEvent* event) const {
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease) return false;
  return IsMapped(event->button());
}

bool QtKeyboardMouseEventSimulateHandler::IsHeldLeftMapped(QMouseEvent* event) const {
  return IsButtonHeld(PointerOf(event), Qt::LeftButton) && IsMapped(Qt::LeftButton);
}

bool QtKeyboardMouseEventSimulateHandler::IsMapped(Qt::MouseButton button) const {
  return buttons_.With(CodeOf(button), CodeOf(button),
                       [this](const ConfigKey* key) { return FindConfigItem(*key) != nullptr; });
}

void QtKeyboardMouseEventSimulateHandler::OnMousePress(QMouseEvent* event) {
  SetButton(PointerOf(event), event->button(), true);
  buttons_.With(CodeOf(event->button()), CodeOf(event->button()), [&](ConfigKey* key) { PressButton(event, key); });
}

void QtKeyboardMouseEventSimulateHandler::PressButton(QMouseEvent* event, ConfigKey* key) {
  ConfigItem* item = FindConfigItem(*key);
  if (event->button() == Qt::LeftButton) return PressLeft(event, item, key);
  EventSimulator* simulator = item ? GetSimulator(item) : nullptr;
  if (!simulator) return;
  if (simulator == RightWalkEventSimulator::GetInstance()) {
    RightWalkEventSimulator::GetInstance()->OnMousePress(item, event);
  } else {
    simulator->Press(item, key);
  }
}

void QtKeyboardMouseEventSimulateHandler::OnMouseRelease(QMouseEvent* event) {
  SetButton(PointerOf(event), event->button(), false);
  buttons_.With(CodeOf(event->button()), CodeOf(event->button()), [&](ConfigKey* key) { ReleaseButton(event, key); });
}

void QtKeyboardMouseEventSimulateHandler::ReleaseButton(QMouseEvent* event, ConfigKey* key) {
  ConfigItem* item = FindConfigItem(*key);
  if (event->button() == Qt::LeftButton) return ReleaseLeft(event, item, key);
  EventSimulator* simulator = item ? GetSimulator(item) : nullptr;
  if (!simulator) return;
  if (simulator == RightWalkEventSimulator::GetInstance()) {
    RightWalkEventSimulator::GetInstance()->OnMouseRelease(item, event);
  } else {
    simulator->Release(item, key);
  }
}

void QtKeyboardMouseEventSimulateHandler::OnMouseMove(QMouseEvent* event) {
  const qint64 id = PointerOf(event);
  if (IsButtonHeld(id, Qt::LeftButton)) return MoveLeftFinger(event);
  if (IsButtonHeld(id, Qt::RightButton)) RightWalkEventSimulator::GetInstance()->OnMouseMove(event);
}

void QtKeyboardMouseEventSimulateHandler::PressLeft(QMouseEvent* event, ConfigItem* item, ConfigKey* key) {
  if (IsStaring()) {
    if (IsFire(item)) StaringAndFireEventSimulator::GetInstance()->Press(item, key);
    return;  // during view control the left button has no contact of its own
  }
  MoveLeftFinger(event);
}

void QtKeyboardMouseEventSimulateHandler::ReleaseLeft(QMouseEvent* event, ConfigItem* item, ConfigKey* key) {
  if (IsStaring()) {
    if (IsFire(item)) StaringAndFireEventSimulator::GetInstance()->Release(item, key);
    return;
  }
  const auto finger = FingerOf(event);
  if (!finger) return;  // the pool is empty
  finger->Reset();
  if (AsVirtual(event)) GiveBackMouseSlot(PointerOf(event));
  SendEvent(finger->UpdateLine());
}

void QtKeyboardMouseEventSimulateHandler::MoveLeftFinger(QMouseEvent* event) {
  const auto finger = FingerOf(event);
  if (!finger) return;  // the pool is empty: the press is dropped
  finger->position = RoundedPoint(qt::PlaceOf(*event));
  SendEvent(finger->UpdateLine());
}

std::shared_ptr<MouseSlotManager> QtKeyboardMouseEventSimulateHandler::FingerOf(const QMouseEvent* event) {
  return AsVirtual(event) ? GetMouseSlot(PointerOf(event)) : default_mouse_slot_;
}

std::shared_ptr<MouseSlotManager> QtKeyboardMouseEventSimulateHandler::GetMouseSlot(qint64 id) {
  const auto known = mouse_slots_.find(id);
  if (known != mouse_slots_.end()) return known->second;
  MacroSlotManager* pool = MacroSlotManager::GetInstance();
  const int slot = pool->FindFree();
  if (slot == SlotManager::kNoSlot) return nullptr;
  pool->Reserve(slot);
  return mouse_slots_.emplace(id, std::make_shared<MouseSlotManager>(slot)).first->second;
}

void QtKeyboardMouseEventSimulateHandler::GiveBackMouseSlot(qint64 id) {
  const auto known = mouse_slots_.find(id);
  if (known == mouse_slots_.end()) return;
  MacroSlotManager::GetInstance()->Free(known->second->GetSlotId());
  mouse_slots_.erase(known);
}

void QtKeyboardMouseEventSimulateHandler::SetButton(qint64 id, Qt::MouseButton button, bool down) {
  unsigned& held = mouse_buttons_[id];
  const auto bit = static_cast<unsigned>(button);
  held = down ? held | bit : held & ~bit;
  if (held == 0 && id != 0) mouse_buttons_.remove(id);  // virtual pointers are created and deleted
}

bool QtKeyboardMouseEventSimulateHandler::IsButtonHeld(qint64 id, Qt::MouseButton button) const {
  return (mouse_buttons_.value(id, 0) & static_cast<unsigned>(button)) != 0;
}

}  // namespace taviinputmanager
