#include "simulators/view/staring_and_fire_event_simulator.h"

#include "core/input_status_manager.h"
#include "keymap/observe_config_item.h"
#include "keymap/spell_cancel_config_item.h"
#include "keymap/staring_config_item.h"
#include "simulators/cast/spell_event_simulator.h"
#include "simulators/view/fire_sync_worker.h"
#include "simulators/view/observe_sync_worker.h"
#include "simulators/view/staring_wm_relative_input_worker.h"
#include "slots/mouse_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::ObserveConfigItem;
using tavikeymapmanager::SpellCancelConfigItem;
using tavikeymapmanager::StaringConfigItem;
namespace keywords = tavikeymapmanager::keywords;

namespace {

bool IsStaring() { return InputStatusManager::GetInstance()->GetStatus() == InputStatus::Staring; }

}  // namespace

StaringAndFireEventSimulator::StaringAndFireEventSimulator() : staring_(StaringWmRelativeInputWorker::GetInstance()) {}

StaringAndFireEventSimulator::~StaringAndFireEventSimulator() = default;

void StaringAndFireEventSimulator::ConnectWorkers() {
  FireSyncWorker* fire = FireSyncWorker::GetInstance();
  ObserveSyncWorker* observe = ObserveSyncWorker::GetInstance();
  connect(fire, &FireSyncWorker::sigSubscribeSpellCancelKey, this, [this] {
    connect(SpellEventSimulator::GetInstance(), &SpellEventSimulator::sigSpellCancelPressed, this,
            &StaringAndFireEventSimulator::OnSpellCancelPressed);
  });
  connect(fire, &FireSyncWorker::sigUnSubscribeSpellCancelKey, this, [this] {
    disconnect(SpellEventSimulator::GetInstance(), &SpellEventSimulator::sigSpellCancelPressed, this,
               &StaringAndFireEventSimulator::OnSpellCancelPressed);
  });
  connect(fire, &FireSyncWorker::sigSubscribeWmRelativeInputEvent, this, [this] {
    relative_route_ = RelativeRoute::kFire;
    LiftViewFinger();
  });
  connect(fire, &FireSyncWorker::sigUnSubscribeWmRelativeInputEvent, this,
          [this] { relative_route_ = RelativeRoute::kStaring; });
  connect(observe, &ObserveSyncWorker::sigSubscribeWmRelativeInputEvent, this,
          [this] { relative_route_ = RelativeRoute::kObserve; });
  connect(observe, &ObserveSyncWorker::sigUnSubscribeWmRelativeInputEvent, this,
          [this] { relative_route_ = RelativeRoute::kStaring; });
}

void StaringAndFireEventSimulator::Press(ConfigItem* item, ConfigKey* key) {
  std::call_once(connected_, [this] { ConnectWorkers(); });
  if (!item) return;  // its type is what matters
  if (item->type == keywords::kTypeFire) {
    if (!IsStaring()) return;  // there is nothing to aim with
    FireSyncWorker::GetInstance()->OnFirePress(item);
  } else if (item->type == keywords::kTypeStaring) {
    ToggleStaring(item, key->text);
  } else if (item->type == keywords::kTypeSpellCancel) {
    FireSyncWorker::GetInstance()->OnFirePress(item);
  } else if (item->type == keywords::kTypeObserve) {
    PressObserve(item, key->text);
  }
}

void StaringAndFireEventSimulator::Release(ConfigItem* item, ConfigKey* key) {
  if (!item) return;
  if (item->type == keywords::kTypeFire) {
    FireSyncWorker::GetInstance()->OnFireRelease();
  } else if (item->type == keywords::kTypeObserve) {
    InputStatusManager* status = InputStatusManager::GetInstance();
    if (status->GetStatus() == InputStatus::Observing) status->SetStatus(InputStatus::StaringOff, key->text);
    ObserveSyncWorker::GetInstance()->OnObserveRelease();
  }
}

void StaringAndFireEventSimulator::ToggleStaring(const ConfigItem* item, const QString& key_text) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  if (IsStaring()) {
    staring_item_.reset();
    has_observe_item_ = false;
    StopAutoReset();
    status->SetStatus(InputStatus::StaringOff, key_text);
  } else {
    const auto* staring = dynamic_cast<const StaringConfigItem*>(item);
    staring_item_ = staring ? std::make_unique<const StaringConfigItem>(*staring) : nullptr;
    status->SetStatus(InputStatus::Staring, key_text);
    if (IsStaring()) staring_->StartStaring(staring);
    if (!IsStaring()) StopAutoReset();  // the host turned it off during the call
  }
  LiftViewFinger();  // whatever it was down for
}

void StaringAndFireEventSimulator::PressObserve(const ConfigItem* item, const QString& key_text) {
  InputStatusManager* status = InputStatusManager::GetInstance();
  switch (status->GetStatus()) {
    case InputStatus::Staring: break;  // observing during view control has no status of its own
    case InputStatus::Normal:
    case InputStatus::StaringOff:
      has_observe_item_ = dynamic_cast<const ObserveConfigItem*>(item) != nullptr;
      status->SetStatus(InputStatus::Observing, key_text);
      if (status->GetStatus() != InputStatus::Observing) return;  // the host released the key during the call
      break;
    default: return;  // a second observe key
  }
  ObserveSyncWorker::GetInstance()->OnObservePress(item);
}

void StaringAndFireEventSimulator::LiftViewFinger() {
  MouseSlotManager* finger = MouseSlotManager::GetInstance();
  finger->Reset();
  SendEvent(finger->UpdateLine());
}

void StaringAndFireEventSimulator::OnRelativeInput(int dx, int dy) {
  if (!staring_item_ && !has_observe_item_) return;
  switch (relative_route_) {
    case RelativeRoute::kFire: return FireSyncWorker::GetInstance()->OnFireRelativeInput(dx, dy);
    case RelativeRoute::kObserve: return ObserveSyncWorker::GetInstance()->OnObserveRelativeInput(dx, dy);
    case RelativeRoute::kStaring: break;
  }
  if (!staring_item_) return;
  staring_->OnStaringRelativeInput(staring_item_.get(), dx, dy);
}

void StaringAndFireEventSimulator::StopAutoReset() { staring_->StopAutoReset(); }

void StaringAndFireEventSimulator::OnSpellCancelPressed(SpellCancelConfigItem& item) {
  ConfigKey key;
  key.device = keywords::kDeviceJoystick;
  Press(&item, &key);
}

}  // namespace taviinputmanager
