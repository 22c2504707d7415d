#ifndef HOST_RECORD_RECORD_PLAY_H_
#define HOST_RECORD_RECORD_PLAY_H_

#include "host/subcommands.h"

namespace tavi {

// `tavi record play`
Subcommand RecordPlayCommand();

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_PLAY_H_
