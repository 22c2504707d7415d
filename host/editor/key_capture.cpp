#include "host/editor/key_capture.h"

#include "host/session/native_key.h"
#include "keymapmanager/key_names.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

const QString kPad = QStringLiteral("Pad ");
const QString kMouse = QStringLiteral("Mouse ");

// A chord consists of two keyboard keys or of two gamepad buttons; nothing for other pairs.
QString ChordOf(const QString& first, const QString& second) {
  const bool is_pad = first.startsWith(kPad);
  if (is_pad != second.startsWith(kPad) || first.startsWith(kMouse) || second.startsWith(kMouse)) return {};
  if (is_pad) return first + QLatin1Char('+') + second.mid(kPad.size());
  return first + QStringLiteral(" + ") + second;
}

}  // namespace

QString KeyCapture::Press(const QString& name) {
  if (name.isEmpty() || name == held_) return {};
  if (!takes_chords_) return name;
  if (held_.isEmpty()) {
    held_ = name;
    return {};
  }
  return ChordOf(held_, name);
}

QString KeyCapture::Release(const QString& name) { return name == held_ ? name : QString(); }

QString NameOfKeyEvent(const QKeyEvent& event) {
  const NativeKey native = NativeKeyOf(event);
  if (native.scancode == 0) return {};
  const auto key = km::KeyFromName(QStringLiteral("Scan %1").arg(native.scancode));
  return key ? km::NameOfKey(*key) : QString();
}

QString NameOfMouseButton(int button) {
  km::ConfigKey key;
  key.device = km::keywords::kDeviceMouse;
  key.scancode = button;
  key.virtual_key = button;
  return km::NameOfKey(key);
}

QString NameOfPadButton(const QString& text) { return km::NameOfKey(km::JoystickKey(text)); }

}  // namespace tavi
