#ifndef HOST_WINDOW_VIEW_GAMEPAD_PICTURE_H_
#define HOST_WINDOW_VIEW_GAMEPAD_PICTURE_H_

#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QStringList>

class QPainter;

namespace tavi {

class PadInput;
struct GuestGamepad;

// The drawable state of a gamepad.
struct GamepadPicture {
  QPointF left_stick;  // -1 (left, up) to 1
  QPointF right_stick;
  QPoint hat;  // -1 (left, up), 0 or 1
  bool left_trigger = false;
  bool right_trigger = false;
  QStringList buttons;  // the names of the buttons that are down, without hat and triggers
};

// The guest's gamepad.
GamepadPicture PictureOf(const GuestGamepad& gamepad);
// A gamepad of this computer, from the values that the library got.
GamepadPicture PictureOf(const PadInput& gamepad);

// Draws a gamepad from the left edge of `place`, in its height: sticks, hat, triggers, then the names of the buttons
// that are down.
void PaintGamepad(QPainter* painter, const QRectF& place, const GamepadPicture& gamepad);

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GAMEPAD_PICTURE_H_
