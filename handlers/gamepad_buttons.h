// The guest's codes of gamepad buttons.
#ifndef HANDLERS_GAMEPAD_BUTTONS_H_
#define HANDLERS_GAMEPAD_BUTTONS_H_

#include <QMap>
#include <QString>

namespace taviinputmanager {

constexpr int kNoButtonCode = -1;
constexpr int kLeftTriggerCode = 312;
constexpr int kRightTriggerCode = 313;
constexpr int kTouchpadCode = 272;

// How a host names the buttons of a gamepad, by the gamepad's kind.
enum class ButtonLayout {
  kA,  // by letters, or by the numbers of a gamepad with letters
  kB,  // by numbers, including a touchpad and a home button
  kC,  // by numbers, with A and B, X and Y swapped
};
constexpr int kButtonLayoutCount = 3;

using ButtonMap = QMap<QString, int>;

// Guest codes by the host's button names. The hat's directions are not buttons.
ButtonMap MakeButtonMap(ButtonLayout layout);

}  // namespace taviinputmanager

#endif  // HANDLERS_GAMEPAD_BUTTONS_H_
