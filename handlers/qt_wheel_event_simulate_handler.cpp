#include "handlers/qt_wheel_event_simulate_handler.h"

#include <utility>

#include <QWheelEvent>

#include "core/clock.h"
#include "core/display_geometry.h"
#include "core/guest_command.h"
#include "core/input_manager.h"
#include "core/input_status_manager.h"
#include "core/keymap_access.h"
#include "core/numbers.h"
#include "core/pixels.h"
#include "handlers/simulator_table.h"
#include "handlers/single_key_item.h"
#include "keymap/keymap_config.h"
#include "keymap/keymap_functions.h"
#include "qt/wheel_events.h"
#include "simulators/curve/curve_event_simulator.h"
#include "simulators/wheel/qt_wheel_event_async_worker.h"
#include "simulators/wheel/qt_wheel_event_zoom_worker.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;

namespace {

constexpr int kNotchTapMs = 50;  // how long the contact of a mapped notch is down

ConfigKey KeyOf(const QWheelEvent* event) {
  const int code = qt::TurnOf(*event) > 0 ? tavikeymapmanager::kWheelUpCode : tavikeymapmanager::kWheelDownCode;
  return tavikeymapmanager::CreateConfigKey(tavikeymapmanager::keywords::kDeviceMouse, -1, code);
}

}  // namespace

QtWheelEventSimulateHandler::QtWheelEventSimulateHandler() = default;

bool QtWheelEventSimulateHandler::IsWheelWorkerRunning() const {
  return QtWheelEventAsyncWorker::GetInstance()->IsRunning() || QtWheelEventZoomWorker::GetInstance()->IsRunning();
}

void QtWheelEventSimulateHandler::OnWheel(QWheelEvent* event, bool /*transparent_pointer*/, double /*delta*/,
                                          int /*use_delta*/) {
  if (event->modifiers() == Qt::ControlModifier) return QtWheelEventZoomWorker::GetInstance()->OnWheel(event, config_);
  if (!InputStatusManager::GetInstance()->HasKeymap()) return TurnWithoutKeymap(event);
  if (PlayMappedItem(event)) return;
  if (WheelSettingsOf(config_).wheel_zoom) return QtWheelEventZoomWorker::GetInstance()->OnWheel(event, config_);
  QtWheelEventAsyncWorker::GetInstance()->OnWheel(event, config_);
}

void QtWheelEventSimulateHandler::TurnWithoutKeymap(QWheelEvent* event) {
  if (InputManager::IsOwnPackage(InputStatusManager::GetInstance()->GetPackageName())) return SendPlainWheel(event);
  QtWheelEventAsyncWorker::GetInstance()->OnWheel(event, config_);
}

// The guest's own apps interpret the last two fields differently: as the pointer's position, without an amount.
void QtWheelEventSimulateHandler::SendPlainWheel(const QWheelEvent* event) {
  const QPoint position = RoundedPoint(event->position());
  int x = position.x();
  int y = position.y();
  const int direction = qt::TurnOf(*event) > 0 ? 1 : -1;
  DisplayGeometry::GetInstance()->WindowToTouch(x, y);
  if (x == kNoPosition || y == kNoPosition) return;  // no display to turn the wheel on
  SendEvent(guest_command::Wheel(x, y, Truncate(static_cast<double>(direction) * x), y));
}

// Unlike keys and buttons, does not report that a mapped device is in use.
ConfigItem* QtWheelEventSimulateHandler::FindItem(const ConfigKey& key) const {
  if (!config_) return nullptr;
  for (ConfigItem* item : std::as_const(config_->items)) {
    if (item && item->IsKeyMatch(key) && IsSingleKeyItem(item)) return item;
  }
  return nullptr;
}

EventSimulator* QtWheelEventSimulateHandler::GetWheelSimulator(const ConfigItem* item) {
  return WheelSimulatorOf(item);
}

bool QtWheelEventSimulateHandler::PlayMappedItem(const QWheelEvent* event) {
  ConfigKey key = KeyOf(event);
  ConfigItem* item = FindItem(key);
  EventSimulator* simulator = item ? GetWheelSimulator(item) : nullptr;
  if (!simulator) return false;
  if (simulator == CurveEventSimulator::GetInstance()) {
    CurveEventSimulator::GetInstance()->Wheel(item, &key);
    return true;
  }
  simulator->Press(item, &key);
  Clock::Sleep(kNotchTapMs);
  simulator->Release(item, &key);
  return true;
}

}  // namespace taviinputmanager
