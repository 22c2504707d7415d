// The guest's own pointer.
#ifndef HANDLERS_MOUSE_TRANSPARENT_MANAGER_H_
#define HANDLERS_MOUSE_TRANSPARENT_MANAGER_H_

#include <QPoint>
#include <QString>

#include "core/line_buffer.h"

namespace taviinputmanager {

// Main thread only. The position persists as long as the process: no reset, load or change of display clears it.
class MouseTransparentManager {
 public:
  static MouseTransparentManager* GetInstance();

  virtual ~MouseTransparentManager();

  // Moves the pointer to the host's, in window pixels.
  void SetPosition(int window_x, int window_y);
  // Moves it by display pixels. It never stops at an edge: x wraps over the whole width, y over the lower nine tenths,
  // so that after a wrap the pointer is not in the top tenth.
  void AddRelative(double dx, double dy);

  // (0, 0) is not a position.
  bool HasPosition() const { return x_ != 0 || y_ != 0; }
  // In display pixels, rounded towards zero.
  QPoint GetPosition() const;

  // Empty without a position or a display.
  LineBuffer MoveLine() const;
  // Take a Qt::MouseButton and update the record of held keys: in the guest, mouse buttons are keys. Empty for a button
  // that the guest does not have.
  LineBuffer ButtonPressLine(int button);
  LineBuffer ButtonReleaseLine(int button);

  // The same, for callers that keep the command.
  QString BuildMoveCommand() const { return MoveLine(); }
  QString BuildButtonPressCommand(int button) { return ButtonPressLine(button); }
  QString BuildButtonReleaseCommand(int button) { return ButtonReleaseLine(button); }

 private:
  MouseTransparentManager() = default;

  double x_ = 0;  // display pixels
  double y_ = 0;
};

}  // namespace taviinputmanager

#endif  // HANDLERS_MOUSE_TRANSPARENT_MANAGER_H_
