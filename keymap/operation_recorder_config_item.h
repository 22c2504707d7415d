// Type "OperationRecorder": a macro that reports its length to the host.
#ifndef KEYMAP_OPERATION_RECORDER_CONFIG_ITEM_H_
#define KEYMAP_OPERATION_RECORDER_CONFIG_ITEM_H_

#include "keymap/macro_config_item.h"

namespace tavikeymapmanager {

struct TAVI_KEYMAP_RECORD OperationRecorderConfigItem : MacroConfigItem {};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_OPERATION_RECORDER_CONFIG_ITEM_H_
