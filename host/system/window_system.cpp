#include "host/system/window_system.h"

#include <QGuiApplication>

namespace tavi {

namespace {

QtMessageHandler next_handler = nullptr;

void DropSessionWarning(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("QStandardPaths: "))) return;
  next_handler(type, context, message);
}

}  // namespace

void DoWithoutWindowSystem() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  NameFontFolder();
  next_handler = qInstallMessageHandler(DropSessionWarning);
}

WindowSystem CurrentWindowSystem() {
  return WindowSystemOf(QGuiApplication::platformName(), qEnvironmentVariable("XDG_SESSION_TYPE"),
                        qEnvironmentVariable("WAYLAND_DISPLAY"));
}

WindowSystem WindowSystemOf(const QString& platform, const QString& session_type, const QString& wayland_display) {
  if (platform.startsWith(QLatin1String("wayland"))) return WindowSystem::kWayland;
  const bool is_wayland_session = session_type == QLatin1String("wayland") || !wayland_display.isEmpty();
  return platform == QLatin1String("xcb") && is_wayland_session ? WindowSystem::kXWayland : WindowSystem::kOther;
}

}  // namespace tavi
