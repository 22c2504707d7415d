#include "host/system/window_system.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

const struct {
  const char* name;
  const char* platform;
  const char* session_type;
  const char* wayland_display;
  WindowSystem system;
} kRows[] = {
    {"an X server of its own", "xcb", "x11", "", WindowSystem::kOther},
    {"no session at all", "xcb", "", "", WindowSystem::kOther},
    {"X11 in a session of Wayland", "xcb", "wayland", "wayland-0", WindowSystem::kXWayland},
    {"a session without a type", "xcb", "", "wayland-0", WindowSystem::kXWayland},
    {"Wayland", "wayland", "wayland", "wayland-0", WindowSystem::kWayland},
    {"Wayland by EGL", "wayland-egl", "", "", WindowSystem::kWayland},
    {"no window system", "offscreen", "wayland", "wayland-0", WindowSystem::kOther},
    {"Windows", "windows", "", "", WindowSystem::kOther},
};

TEST(WindowSystems, AreKnownByTheSession) {
  for (const auto& row : kRows) {
    EXPECT_EQ(WindowSystemOf(row.platform, row.session_type, row.wayland_display), row.system) << row.name;
  }
}

}  // namespace
}  // namespace tavi
