#include "host/session/host_event.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStringList>
#include <QWheelEvent>

#include "host/guest/rounding.h"
#include "host/session/live_host.h"
#include "keymap/joystick_event.h"
#include "keymap/keymap_functions.h"
#include "keymap/keywords.h"
#include "keymapmanager/key_names.h"
#include "qt/mouse_events.h"
#include "qt/touch_events.h"
#include "taviinputmanager/joystick_event.h"

namespace tavi {

namespace km = tavikeymapmanager;
using Kind = HostEvent::Kind;

namespace {

constexpr int kDigits = 3;  // decimals of fractions: finer than a pixel of most guests

QPointF FractionOf(const QPointF& place) {
  const QSize view = LiveHost::GetInstance()->ViewSize();
  return {place.x() / qMax(1, view.width()), place.y() / qMax(1, view.height())};
}

QString NumberText(double value) { return QString::number(Rounded(value * 1000) / 1000.0, 'g', kDigits + 3); }

QString PlaceText(const QPointF& fraction) { return NumberText(fraction.x()) + ", " + NumberText(fraction.y()); }

QString EdgeText(bool is_press) { return is_press ? QStringLiteral("press") : QStringLiteral("release"); }

HostEvent DescribeKey(const QKeyEvent& event) {
  HostEvent result;
  const bool is_press = event.type() == QEvent::KeyPress;
  result.kind = is_press ? Kind::kPress : Kind::kRelease;
  result.repeats = event.isAutoRepeat();
  result.text = EdgeText(is_press) + (result.repeats ? QStringLiteral(", repeated") : QString());
  if (event.nativeScanCode() == 0) return result;  // text only
  const int scancode = static_cast<int>(event.nativeScanCode());
  result.code = QStringLiteral("scan %1").arg(scancode);
  result.key = km::CreateConfigKey(km::keywords::kDeviceKeyboard, static_cast<int>(event.nativeVirtualKey()), scancode);
  return result;
}

HostEvent DescribeMouse(const QMouseEvent& event) {
  HostEvent result;
  result.place = FractionOf(qt::PlaceOf(event));
  if (event.type() == QEvent::MouseMove) {
    result.kind = Kind::kMove;
    result.text = QStringLiteral("move to ") + PlaceText(*result.place);
    return result;
  }
  const bool is_press = event.type() == QEvent::MouseButtonPress;
  result.kind = is_press ? Kind::kPress : Kind::kRelease;
  result.text = QStringLiteral("%1 at %2").arg(EdgeText(is_press), PlaceText(*result.place));
  result.code = QStringLiteral("button %1").arg(static_cast<int>(event.button()));
  result.key = km::CreateConfigKey(km::keywords::kDeviceMouse, event.button(), event.button());
  return result;
}

HostEvent DescribeWheel(const QWheelEvent& event) {
  HostEvent result;
  const int turn = event.angleDelta().y() != 0 ? event.angleDelta().y() : event.angleDelta().x();
  result.kind = Kind::kTurn;
  result.place = FractionOf(event.position());
  result.text = QStringLiteral("turn at ") + PlaceText(*result.place);
  result.code = QStringLiteral("wheel %1%2").arg(turn > 0 ? QStringLiteral("+") : QString()).arg(turn);
  const int code = turn > 0 ? km::kWheelUpCode : km::kWheelDownCode;
  result.key = km::CreateConfigKey(km::keywords::kDeviceMouse, code, code);
  return result;
}

HostEvent DescribeTouch(const QTouchEvent& event) {
  HostEvent result;
  result.kind = event.type() == QEvent::TouchUpdate ? Kind::kMove : Kind::kTouch;
  QStringList places;
  for (const qt::TouchPoint& point : qt::PointsOf(event)) {
    places += QStringLiteral("%1: %2").arg(point.id()).arg(PlaceText(FractionOf(qt::PlaceOf(point))));
  }
  if (!qt::PointsOf(event).isEmpty()) result.place = FractionOf(qt::PlaceOf(qt::PointsOf(event).first()));
  const bool is_end = event.type() == QEvent::TouchEnd;
  result.text = is_end ? QStringLiteral("touch ends") : QStringLiteral("touch ") + places.join(QStringLiteral("; "));
  return result;
}

HostEvent DescribeText(const QInputMethodEvent& event) {
  HostEvent result;
  result.kind = Kind::kText;
  const bool is_done = !event.commitString().isEmpty();
  result.text = is_done ? QStringLiteral("text \"%1\"").arg(event.commitString())
                        : QStringLiteral("composing \"%1\"").arg(event.preeditString());
  return result;
}

}  // namespace

bool HostEvent::IsRepeatOf(const HostEvent& before) const {
  if (kind != before.kind || !km::IsSameKey(key, before.key)) return false;
  return kind == Kind::kMove || kind == Kind::kStick || (repeats && before.repeats);
}

HostEvent DescribeEvent(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: return DescribeKey(static_cast<const QKeyEvent&>(event));
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease: return DescribeMouse(static_cast<const QMouseEvent&>(event));
    case QEvent::Wheel: return DescribeWheel(static_cast<const QWheelEvent&>(event));
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd: return DescribeTouch(static_cast<const QTouchEvent&>(event));
    case QEvent::InputMethod: return DescribeText(static_cast<const QInputMethodEvent&>(event));
    default: return {};
  }
}

HostEvent DescribeJoystickEvent(const QEvent& event) {
  HostEvent result;
  if (event.type() == km::JoystickEvent::AxisTriggle) {
    const auto& axis = static_cast<const taviinputmanager::JoystickAxisEvent&>(event);
    result.kind = Kind::kStick;
    result.text = QStringLiteral("stick at ") + PlaceText({axis.x, axis.y});
    result.code = QStringLiteral("axis %1").arg(axis.stick);
    result.key = km::JoystickKey(axis.stick == 0 ? km::keywords::kLeftStick : km::keywords::kRightStick);
    return result;
  }
  const auto& button = static_cast<const taviinputmanager::JoystickButtonEvent&>(event);
  const bool is_press = event.type() == km::JoystickEvent::ButtonPress;
  result.kind = is_press ? Kind::kPress : Kind::kRelease;
  result.text = EdgeText(is_press);
  result.code = QStringLiteral("pad %1").arg(button.text);
  result.key = km::JoystickKey(button.text);
  return result;
}

HostEvent DescribeMovement(int dx, int dy) {
  HostEvent result;
  result.kind = Kind::kMove;
  result.text = QStringLiteral("move by %1, %2").arg(dx).arg(dy);
  result.key.device = km::keywords::kDeviceMouse;  // distinguishes it from moves of a free pointer
  return result;
}

HostEvent DescribeLettingGo() {
  HostEvent event;
  event.kind = Kind::kLetGo;
  event.text = QStringLiteral("release all");
  return event;
}

QString KeymapFields(const HostEvent& event) {
  QStringList fields;
  const QString key = km::NameOfKey(event.key);
  if (km::IsKeySet(event.key) && !key.isEmpty()) fields += QStringLiteral("key: ") + key;
  if (event.place) fields += QStringLiteral("point: [%1]").arg(PlaceText(*event.place));
  return fields.join(QLatin1Char('\n'));
}

}  // namespace tavi
