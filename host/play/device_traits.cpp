#include "host/play/device_traits.h"

#include <QFileInfo>

namespace tavi {

namespace {

// "screen" and so on are appended.
const QString kGuestPrefix = QStringLiteral("tavi ");

bool IsSameFile(const QString& a, const QString& b) {
  const QString canonical = QFileInfo(a).canonicalFilePath();  // the targets of links such as those in /dev/input/by-id
  return a == b || (!canonical.isEmpty() && canonical == QFileInfo(b).canonicalFilePath());
}

bool IsWanted(const DeviceTraits& traits, const QStringList& wanted) {
  for (const QString& word : wanted) {
    const bool is_path = word.startsWith(QLatin1Char('/'));
    if (is_path ? IsSameFile(word, traits.path) : word == traits.name) return true;
  }
  return wanted.isEmpty();
}

QString WhyOther(const DeviceTraits& traits) {
  if (traits.has_places) return QStringLiteral("it reports positions instead of movement");
  return QStringLiteral("neither a keyboard nor a mouse");
}

}  // namespace

DeviceKind KindOf(const DeviceTraits& traits) {
  if (traits.has_letters || traits.has_keypad) return DeviceKind::kKeyboard;
  if (traits.has_motion && traits.has_mouse_buttons) return DeviceKind::kMouse;
  return traits.has_gamepad_buttons ? DeviceKind::kGamepad : DeviceKind::kOther;
}

QString WordOf(DeviceKind kind) {
  switch (kind) {
    case DeviceKind::kKeyboard: return QStringLiteral("keyboard");
    case DeviceKind::kMouse: return QStringLiteral("mouse");
    case DeviceKind::kGamepad: return QStringLiteral("gamepad");
    case DeviceKind::kOther: return QStringLiteral("other");
  }
  return {};
}

bool IsOfAGuest(const DeviceTraits& traits) { return traits.is_virtual && traits.name.startsWith(kGuestPrefix); }

QString WhyNotTaken(const DeviceTraits& traits, const QStringList& wanted) {
  if (IsOfAGuest(traits)) return QStringLiteral("a guest's own device");
  switch (KindOf(traits)) {
    case DeviceKind::kGamepad: return QStringLiteral("gamepads are read through SDL");
    case DeviceKind::kOther: return WhyOther(traits);
    default: return IsWanted(traits, wanted) ? QString() : QStringLiteral("not among those of --device");
  }
}

}  // namespace tavi
