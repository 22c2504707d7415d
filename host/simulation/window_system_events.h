#ifndef HOST_SIMULATION_WINDOW_SYSTEM_EVENTS_H_
#define HOST_SIMULATION_WINDOW_SYSTEM_EVENTS_H_

namespace tavi {

// Delivers what the platform "offscreen" tells its windows, such as that they are exposed now. Main thread.
void SendWindowSystemEvents();

}  // namespace tavi

#endif  // HOST_SIMULATION_WINDOW_SYSTEM_EVENTS_H_
