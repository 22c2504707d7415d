#ifndef HOST_RECORD_RECORD_DRAW_H_
#define HOST_RECORD_RECORD_DRAW_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi record draw`
Subcommand RecordDrawCommand();

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_DRAW_H_
