// The simulator of each item type.
#ifndef HANDLERS_SIMULATOR_TABLE_H_
#define HANDLERS_SIMULATOR_TABLE_H_

namespace tavikeymapmanager {
struct ConfigItem;
}

namespace taviinputmanager {

class EventSimulator;

// For keys and mouse buttons. Null for a type without an effect of its own: "Fire", which the left button handles
// separately, "Tip", a "SpellCancel" that is not immediate, and every unknown one.
EventSimulator* SimulatorOf(const tavikeymapmanager::ConfigItem* item);

// For gamepad buttons, which support fewer types. Null for all others.
EventSimulator* JoystickSimulatorOf(const tavikeymapmanager::ConfigItem* item);

// For wheel notches, which support even fewer. Null for all others.
EventSimulator* WheelSimulatorOf(const tavikeymapmanager::ConfigItem* item);

}  // namespace taviinputmanager

#endif  // HANDLERS_SIMULATOR_TABLE_H_
