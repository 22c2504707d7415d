// Which simulator an item of a type gets.
#ifndef HANDLERS_SIMULATOR_TABLE_H_
#define HANDLERS_SIMULATOR_TABLE_H_

namespace tavikeymapmanager {
struct ConfigItem;
}

namespace taviinputmanager {

class EventSimulator;

// For keys and mouse buttons. Null for a type that does nothing by itself: "Fire", which the left button reaches by its
// own way, "Tip", a "SpellCancel" that is not immediate, and every unknown one.
EventSimulator* SimulatorOf(const tavikeymapmanager::ConfigItem* item);

// For buttons of a gamepad, which work fewer types. Null for all others.
EventSimulator* JoystickSimulatorOf(const tavikeymapmanager::ConfigItem* item);

// For turns of the wheel, which work fewer still. Null for all others.
EventSimulator* WheelSimulatorOf(const tavikeymapmanager::ConfigItem* item);

}  // namespace taviinputmanager

#endif  // HANDLERS_SIMULATOR_TABLE_H_
