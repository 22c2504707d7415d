#ifndef HOST_RECORD_RECORD_PLAY_H_
#define HOST_RECORD_RECORD_PLAY_H_

namespace tavi {

struct Invocation;

// `tavi record play FILE`; the arguments stand behind the word "play".
int RunRecordPlay(const Invocation& invocation);

}  // namespace tavi

#endif  // HOST_RECORD_RECORD_PLAY_H_
