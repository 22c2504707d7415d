#include "tests/host/window/pointer/x_server.h"

#include <algorithm>
#include <xcb/xfixes.h>
#include <xcb/xtest.h>

#include <QStandardPaths>

#include "host/window/pointer/x11_reply.h"
#include "keymap/scan_codes.h"

namespace tavi {

namespace {

constexpr int kStartMs = 60000;
constexpr uint8_t kRelative = 1;  // of a motion

}  // namespace

XServer::XServer() {
  const QString program = QStandardPaths::findExecutable(QStringLiteral("Xvfb"));
  if (program.isEmpty()) return;
  process_.setStandardErrorFile(QProcess::nullDevice());
  process_.start(program, {"-displayfd", "1", "-screen", "0", "1600x1000x24", "-nolisten", "tcp", "-noreset"});
  while (!process_.canReadLine() && process_.waitForReadyRead(kStartMs)) continue;
  display_ = ":" + process_.readLine().trimmed();
  qputenv("DISPLAY", display_);
  qputenv("QT_QPA_PLATFORM", "xcb");
  for (const char* variable : {"XDG_SESSION_TYPE", "WAYLAND_DISPLAY"}) qunsetenv(variable);
}

XServer::~XServer() {
  process_.terminate();
  process_.waitForFinished();
}

XClient::XClient()
    : connection_(xcb_connect(nullptr, nullptr)),
      root_(xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root) {}

XClient::~XClient() { xcb_disconnect(connection_); }

void XClient::Sync() {
  X11Reply<xcb_get_input_focus_reply_t>(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
}

void Hand::MoveBy(int dx, int dy) {
  xcb_test_fake_input(connection_, XCB_MOTION_NOTIFY, kRelative, XCB_CURRENT_TIME, XCB_NONE, static_cast<int16_t>(dx),
                      static_cast<int16_t>(dy), 0);
  Sync();
}

void Hand::MoveTo(const QPoint& place) {
  const QPoint way = place - Pointer();
  MoveBy(way.x(), way.y());
}

void Hand::Press(int button) {
  xcb_test_fake_input(connection_, XCB_BUTTON_PRESS, static_cast<uint8_t>(button), XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  Sync();
}

void Hand::Release(int button) {
  xcb_test_fake_input(connection_, XCB_BUTTON_RELEASE, static_cast<uint8_t>(button), XCB_CURRENT_TIME, XCB_NONE, 0, 0,
                      0);
  Sync();
}

void Hand::Click(int button) {
  Press(button);
  Release(button);
}

void Hand::PressKey(int code) {
  xcb_test_fake_input(connection_, XCB_KEY_PRESS, static_cast<uint8_t>(code + tavikeymapmanager::kX11KeyOffset),
                      XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  Sync();
}

void Hand::ReleaseKey(int code) {
  xcb_test_fake_input(connection_, XCB_KEY_RELEASE, static_cast<uint8_t>(code + tavikeymapmanager::kX11KeyOffset),
                      XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  Sync();
}

void Hand::ClickKey(int code) {
  PressKey(code);
  ReleaseKey(code);
}

void Hand::Focus(xcb_window_t window) {
  xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
  Sync();
}

QPoint Hand::Pointer() {
  const X11Reply<xcb_query_pointer_reply_t> reply(
      xcb_query_pointer_reply(connection_, xcb_query_pointer(connection_, root_), nullptr));
  return {reply->root_x, reply->root_y};
}

bool Hand::SeesPointer() {
  const X11Reply<xcb_xfixes_query_version_reply_t> version(
      xcb_xfixes_query_version_reply(connection_, xcb_xfixes_query_version(connection_, 1, 0), nullptr));
  const X11Reply<xcb_xfixes_get_cursor_image_reply_t> reply(
      xcb_xfixes_get_cursor_image_reply(connection_, xcb_xfixes_get_cursor_image(connection_), nullptr));
  const uint32_t* pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
  const int count = xcb_xfixes_get_cursor_image_cursor_image_length(reply.get());
  return std::any_of(pixels, pixels + count, [](uint32_t pixel) { return pixel >> 24 != 0; });
}

OtherProgram::OtherProgram() : window_(xcb_generate_id(connection_)) {
  const uint32_t values[] = {1, XCB_EVENT_MASK_BUTTON_PRESS};
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, root_, 0, 0, 1600, 1000, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                    values);
  xcb_map_window(connection_, window_);
  Sync();
}

int OtherProgram::Clicks() {
  Sync();
  while (const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
    if ((event->response_type & ~0x80) == XCB_BUTTON_PRESS) ++clicks_;
  }
  return clicks_;
}

bool OtherProgram::GrabPointer() {
  const auto request = xcb_grab_pointer(connection_, 0, window_, XCB_EVENT_MASK_BUTTON_PRESS, XCB_GRAB_MODE_ASYNC,
                                        XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
  const X11Reply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(connection_, request, nullptr));
  return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void OtherProgram::UngrabPointer() {
  xcb_ungrab_pointer(connection_, XCB_CURRENT_TIME);
  Sync();
}

}  // namespace tavi
