// What an interruption does, on all systems. terminal_posix.cpp and terminal_windows.cpp receive them.
#ifndef HOST_SYSTEM_INTERRUPTION_H_
#define HOST_SYSTEM_INTERRUPTION_H_

namespace tavi {

// Calls the taker with the number of the signal, and returns. If there is none, it cleans up and calls `end`, which
// ends the program; until then, other threads wait if they set a clean-up or a taker.
void React(int number, void (*end)(int number));

// From now on the system's interruptions call React, on a thread of their own. Further calls do nothing.
void ListenForInterruptions();

}  // namespace tavi

#endif  // HOST_SYSTEM_INTERRUPTION_H_
