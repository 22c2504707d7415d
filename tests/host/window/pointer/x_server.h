// An X server for the test, and its contents besides the window: a simulated hand on mouse and keyboard, another
// program.
#ifndef TESTS_HOST_WINDOW_POINTER_X_SERVER_H_
#define TESTS_HOST_WINDOW_POINTER_X_SERVER_H_

#include <xcb/xcb.h>

#include <QPoint>
#include <QProcess>
#include <QRect>

namespace tavi {

// A server with an empty screen, which an application that is created afterwards uses, and which is not a desktop
// session. It ends with the object.
class XServer {
 public:
  XServer();
  ~XServer();

  // Empty if Xvfb is not installed.
  const QByteArray& Display() const { return display_; }

 private:
  QProcess process_;
  QByteArray display_;
};

// A separate connection to the server.
class XClient {
 public:
  XClient();
  ~XClient();
  XClient(const XClient&) = delete;
  XClient& operator=(const XClient&) = delete;

 protected:
  // Waits until the server has handled all requests.
  void Sync();

  xcb_connection_t* connection_;
  xcb_window_t root_;
};

// Moves and presses like devices. May be used on a thread of its own.
class Hand : public XClient {
 public:
  void MoveBy(int dx, int dy);
  void MoveTo(const QPoint& place);
  void Press(int button);
  void Release(int button);
  void Click(int button);
  // `code` is the Linux code.
  void ClickKey(int code);
  void PressKey(int code);
  void ReleaseKey(int code);
  void Focus(xcb_window_t window);

  QPoint Pointer();
  bool SeesPointer();
};

// A window that covers the whole screen, behind those opened later.
class OtherProgram : public XClient {
 public:
  OtherProgram();

  xcb_window_t Window() const { return window_; }
  // The buttons that were pressed here.
  int Clicks();
  bool GrabPointer();
  void UngrabPointer();

 private:
  xcb_window_t window_;
  int clicks_ = 0;
};

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_POINTER_X_SERVER_H_
