#include "host/window/window_memory.h"

#include <QAction>
#include <QDockWidget>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>

#include "host/look/theme.h"
#include "host/session/live_host.h"
#include "host/window/dock_folder.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/main_tool_bar.h"
#include "host/window/main_window.h"
#include "host/window/view/guest_display.h"

namespace tavi {

namespace {

constexpr QSize kFirstSize(1360, 760);
constexpr QSize kFrame(8, 40);  // of the frame that a window system adds, at most
constexpr int kVersion = 1;     // of the docks and tool bars

constexpr char kSize[] = "window/size";
constexpr char kLayout[] = "window/layout";
constexpr char kDocks[] = "window/docks";
constexpr char kOverlay[] = "window/keys";
constexpr char kKeymap[] = "keymap";
constexpr char kOptions[] = "options";
const char* const kFileOptions[] = {"joystick", "background"};

bool IsFile(const QString& path) { return !path.isEmpty() && QFileInfo(path).isFile(); }

QString AbsolutePath(const QString& path) { return path.isEmpty() ? path : QFileInfo(path).absoluteFilePath(); }

QSize RoomFor(const QWidget& window) { return window.screen()->availableSize() - kFrame; }

// As the help of `tavi window` names them, without the dashes.
QMap<QString, QString> OptionsOf(const MainWindow& window) {
  const LiveHost* host = LiveHost::GetInstance();
  const QSize size = host->GuestSize();
  const bool follows = window.Display()->FollowsView();
  return {
      {"joystick", AbsolutePath(window.JoystickKeymapPath())},
      {"background", AbsolutePath(window.Display()->BackgroundFile())},
      {"size", follows ? QStringLiteral("view") : QStringLiteral("%1x%2").arg(size.width()).arg(size.height())},
      {"rotation", QString::number(host->Geometry().rotation)},
      {"pixel-ratio", QString::number(host->PixelRatio())},
      {"look", theme::NameOf(theme::CurrentLook())},
      {"pause-key", window.PauseKeyName()},
      {"panic-key", window.PanicKeyName()},
      {"controls-key", window.ControlsKeyName()},
  };
}

}  // namespace

QString WindowMemory::UsualFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/tavi/window.ini");
}

QSize WindowMemory::FirstSize(const QSize& available) { return kFirstSize.boundedTo(available - kFrame); }

WindowMemory::WindowMemory(const QString& file)
    : settings_(file.isEmpty() ? nullptr : std::make_unique<QSettings>(file, QSettings::IniFormat)) {}

WindowMemory::~WindowMemory() = default;

QVariant WindowMemory::Value(const char* key) const {
  return settings_ ? settings_->value(QLatin1String(key)) : QVariant();
}

QString WindowMemory::Keymap() const {
  const QString path = Value(kKeymap).toString();
  return IsFile(path) ? path : QString();
}

QMap<QString, QString> WindowMemory::Options() const {
  QMap<QString, QString> options;
  const QVariantMap kept = Value(kOptions).toMap();
  for (auto option = kept.begin(); option != kept.end(); ++option) {
    options.insert(QStringLiteral("--") + option.key(), option.value().toString());
  }
  for (const char* name : kFileOptions) {
    const QString option = QStringLiteral("--") + QLatin1String(name);
    if (!IsFile(options.value(option))) options.remove(option);
  }
  return options;
}

void WindowMemory::Restore(MainWindow* window) const {
  const QSize size = Value(kSize).toSize();
  window->resize(size.isValid() ? size.boundedTo(RoomFor(*window)) : FirstSize(window->screen()->availableSize()));
  if (!window->restoreState(Value(kLayout).toByteArray(), kVersion)) return;
  window->ShowPartsInUse();
  const QStringList shown = Value(kDocks).toStringList();
  for (QDockWidget* dock : window->RememberedDocks())
    window->Docks()->SetWanted(dock, shown.contains(dock->objectName()));
  window->Tools()->Overlay()->setChecked(Value(kOverlay).toBool());
}

void WindowMemory::Save(const MainWindow& window) {
  if (!settings_) return;
  QStringList shown;
  for (QDockWidget* dock : window.RememberedDocks()) {
    if (window.Docks()->IsWanted(dock)) shown += dock->objectName();
  }
  QVariantMap options;
  const QMap<QString, QString> used = OptionsOf(window);
  for (auto option = used.begin(); option != used.end(); ++option) options.insert(option.key(), option.value());
  settings_->setValue(QLatin1String(kSize), window.size());
  settings_->setValue(QLatin1String(kLayout), window.saveState(kVersion));
  settings_->setValue(QLatin1String(kDocks), shown);
  settings_->setValue(QLatin1String(kOverlay), window.Tools()->Overlay()->isChecked());
  // As text, each Qt has an encoding of its own; the options have one that both share.
  settings_->setValue(QLatin1String(kKeymap), AbsolutePath(window.Editor()->Document()->Path()).toUtf8());
  settings_->setValue(QLatin1String(kOptions), options);
  settings_->sync();
}

}  // namespace tavi
