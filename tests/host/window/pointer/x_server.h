// An X server of the test's own, and what stands around the window there: a hand at mouse and keyboard, another
// program.
#ifndef TESTS_HOST_WINDOW_POINTER_X_SERVER_H_
#define TESTS_HOST_WINDOW_POINTER_X_SERVER_H_

#include <xcb/xcb.h>

#include <QPoint>
#include <QProcess>
#include <QRect>

namespace tavi {

// A server with one screen and nothing on it, which the application made after it uses, and which is no session of a
// desktop. It ends with the object.
class XServer {
 public:
  XServer();
  ~XServer();

  // Empty where Xvfb is not installed.
  const QByteArray& Display() const { return display_; }

 private:
  QProcess process_;
  QByteArray display_;
};

// A connection of its own to the server.
class XClient {
 public:
  XClient();
  ~XClient();
  XClient(const XClient&) = delete;
  XClient& operator=(const XClient&) = delete;

 protected:
  // Until the server has done all that was asked for.
  void Sync();

  xcb_connection_t* connection_;
  xcb_window_t root_;
};

// Moves and presses as devices do. May be used on a thread of its own.
class Hand : public XClient {
 public:
  void MoveBy(int dx, int dy);
  void MoveTo(const QPoint& place);
  void Press(int button);
  void Release(int button);
  void Click(int button);
  // `code` is Linux'.
  void ClickKey(int code);
  void PressKey(int code);
  void ReleaseKey(int code);
  void Focus(xcb_window_t window);

  QPoint Pointer();
  bool SeesPointer();
};

// A window that covers the whole screen, behind what is opened after it.
class OtherProgram : public XClient {
 public:
  OtherProgram();

  xcb_window_t Window() const { return window_; }
  // Buttons that went down here.
  int Clicks();
  bool GrabPointer();
  void UngrabPointer();

 private:
  xcb_window_t window_;
  int clicks_ = 0;
};

}  // namespace tavi

#endif  // TESTS_HOST_WINDOW_POINTER_X_SERVER_H_
