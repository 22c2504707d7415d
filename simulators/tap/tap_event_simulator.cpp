#include "simulators/tap/tap_event_simulator.h"

#include "keymap/config_item.h"
#include "slots/multipoint_slot_manager.h"

namespace taviinputmanager {

using tavikeymapmanager::ConfigItem;
using tavikeymapmanager::ConfigKey;

void TapEventSimulator::Press(ConfigItem* item, ConfigKey* /*key*/) {
  if (!item) return;  // a tap is at the point of its item
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (!pool->PressAt(item->rel_x, item->rel_y)) return;  // every contact of the pool is down: the press is lost
  SendEvent(pool->UpdateLine());
}

void TapEventSimulator::Release(ConfigItem* item, ConfigKey* /*key*/) {
  if (!item) return;
  MultipointSlotManager* pool = MultipointSlotManager::GetInstance();
  if (!pool->ReleaseAt(item->rel_x, item->rel_y)) return;  // no contact was ever pressed at this point
  SendEvent(pool->UpdateLine());
}

}  // namespace taviinputmanager
