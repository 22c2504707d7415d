#ifndef HOST_WINDOW_GAMEPAD_PICTURE_H_
#define HOST_WINDOW_GAMEPAD_PICTURE_H_

#include <QRectF>

class QPainter;

namespace tavi {

struct GuestGamepad;

// Draws the guest's virtual gamepad from the left edge of `place`, in its height: sticks, hat, triggers, then the names
// of the buttons that are down.
void PaintGamepad(QPainter* painter, const QRectF& place, const GuestGamepad& gamepad);

}  // namespace tavi

#endif  // HOST_WINDOW_GAMEPAD_PICTURE_H_
