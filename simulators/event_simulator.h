// What a keymap item becomes at run time.
#ifndef SIMULATORS_EVENT_SIMULATOR_H_
#define SIMULATORS_EVENT_SIMULATOR_H_

#include "core/event_handler.h"

namespace tavikeymapmanager {
struct ConfigItem;
struct ConfigKey;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

// One singleton serves every item of its type. Main thread.
//
// `item` and `key` are the caller's and valid during the call; `key` is the key as it was pressed now, not the item's.
// Pairing is not guaranteed: a release may come with no press before it, and a press may follow a press.
class EventSimulator : public EventHandler {
 public:
  virtual void Press(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) = 0;
  virtual void Release(tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key) = 0;
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_EVENT_SIMULATOR_H_
