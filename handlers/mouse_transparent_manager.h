// The guest's own pointer.
#ifndef HANDLERS_MOUSE_TRANSPARENT_MANAGER_H_
#define HANDLERS_MOUSE_TRANSPARENT_MANAGER_H_

#include <QPoint>
#include <QString>

#include "core/line_buffer.h"

namespace taviinputmanager {

// Main thread only. The position lives as long as the process: no reset, load or change of display clears it.
class MouseTransparentManager {
 public:
  static MouseTransparentManager* GetInstance();

  virtual ~MouseTransparentManager();

  // Puts the pointer where the host's is, in window pixels.
  void SetPosition(int window_x, int window_y);
  // Moves it by display pixels. It never stops at an edge: x wraps over the whole width, y over the lower nine tenths,
  // so that after a wrap the pointer does not stand in the top tenth.
  void AddRelative(double dx, double dy);

  // (0, 0) is no position.
  bool HasPosition() const { return x_ != 0 || y_ != 0; }
  // In display pixels, towards zero.
  QPoint GetPosition() const;

  // Empty while there is no position, or no display.
  LineBuffer MoveLine() const;
  // Take a Qt::MouseButton and keep the record of held keys: in the guest, mouse buttons are keys. Empty for a button
  // that the guest does not know.
  LineBuffer ButtonPressLine(int button);
  LineBuffer ButtonReleaseLine(int button);

  // The same, for those who keep a command.
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
