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

// What of a gamepad can be drawn.
struct GamepadPicture {
  QPointF left_stick;  // -1 (left, up) to 1
  QPointF right_stick;
  QPoint hat;  // -1 (left, up), 0 or 1
  bool left_trigger = false;
  bool right_trigger = false;
  QStringList buttons;  // the names of those that are down, without hat and triggers
};

// The guest's gamepad.
GamepadPicture PictureOf(const GuestGamepad& gamepad);
// A gamepad of this computer, as the library was told of it.
GamepadPicture PictureOf(const PadInput& gamepad);

// Draws a gamepad from the left edge of `place`, in its height: sticks, hat, triggers, then the names of the buttons
// that are down.
void PaintGamepad(QPainter* painter, const QRectF& place, const GamepadPicture& gamepad);

}  // namespace tavi

#endif  // HOST_WINDOW_VIEW_GAMEPAD_PICTURE_H_
