#include "host/simulation/script_player.h"

#include <algorithm>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "host/guest/rounding.h"
#include "host/simulation/simulated_host.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/joystick_event.h"
#include "keymapmanager/key_names.h"
#include "qt/touch_events.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

using tavikeymapmanager::ConfigKey;
using tavikeymapmanager::JoystickEvent;
using Kind = ScriptCommand::Kind;

namespace {

constexpr int kGamepad = 0;

struct ModifierKey {
  int scancode;
  Qt::KeyboardModifier modifier;
};

constexpr ModifierKey kModifierKeys[] = {
    {29, Qt::ControlModifier}, {285, Qt::ControlModifier}, {42, Qt::ShiftModifier},
    {54, Qt::ShiftModifier},   {56, Qt::AltModifier},      {312, Qt::AltModifier},
};

Qt::KeyboardModifier ModifierOf(int scancode) {
  for (const ModifierKey& key : kModifierKeys) {
    if (key.scancode == scancode) return key.modifier;
  }
  return Qt::NoModifier;
}

Qt::MouseButton ButtonOf(const ConfigKey& key) { return static_cast<Qt::MouseButton>(key.scancode); }

}  // namespace

ScriptPlayer::ScriptPlayer(VirtualEventDispatcher* clock, SimulatedHost* host) : clock_(clock), host_(host) {}

void ScriptPlayer::Play(const QVector<ScriptCommand>& commands) {
  for (const ScriptCommand& command : commands) Play(command);
}

void ScriptPlayer::LoadKeymap(const QString& path) {
  taviinputmanager::OnLoadKeymapConfigAndInfo(path, package, QString(), display);
}

void ScriptPlayer::Play(const ScriptCommand& command) {
  if (command.kind == Kind::kWait) return clock_->Advance(command.number);
  Feed(command);
  clock_->Settle();
}

void ScriptPlayer::Feed(const ScriptCommand& command) {
  switch (command.kind) {
    case Kind::kKeyDown: SendKey(QEvent::KeyPress, command.key, false); break;
    case Kind::kKeyRepeat: SendKey(QEvent::KeyPress, command.key, true); break;
    case Kind::kKeyUp: SendKey(QEvent::KeyRelease, command.key, false); break;
    case Kind::kMouseDown: SendMouse(QEvent::MouseButtonPress, command.point, ButtonOf(command.key)); break;
    case Kind::kMouseDouble: SendMouse(QEvent::MouseButtonDblClick, command.point, ButtonOf(command.key)); break;
    case Kind::kMouseUp: SendMouse(QEvent::MouseButtonRelease, command.point, ButtonOf(command.key)); break;
    case Kind::kMove: SendMouse(QEvent::MouseMove, command.point, Qt::NoButton); break;
    case Kind::kWheel: SendWheel(command.number, command.point); break;
    case Kind::kRelative:
      taviinputmanager::OnWindowsWmRelativeInputEvent(static_cast<int>(command.point.x()),
                                                      static_cast<int>(command.point.y()));
      break;
    case Kind::kTouchBegin: SendTouch(QEvent::TouchBegin, command.touches); break;
    case Kind::kTouchUpdate: SendTouch(QEvent::TouchUpdate, command.touches); break;
    case Kind::kTouchEnd: SendTouch(QEvent::TouchEnd, touches_); break;
    case Kind::kType: TypeText(command.text); break;
    case Kind::kCommit: SendInputMethod(command.text, QString()); break;
    case Kind::kCompose: SendInputMethod(QString(), command.text); break;
    case Kind::kJoyDown: SendJoystickButton(JoystickEvent::ButtonPress, command.text); break;
    case Kind::kJoyUp: SendJoystickButton(JoystickEvent::ButtonRelease, command.text); break;
    case Kind::kJoyAxis: SendJoystickAxis(command.number, command.point); break;
    case Kind::kReset: taviinputmanager::OnResetInputStatus(command.flag, 0); break;
    case Kind::kDisplay: taviinputmanager::UpdateDisplayId(display = command.number); break;
    case Kind::kKeymap: LoadKeymap(command.text); break;
    case Kind::kJoymap: taviinputmanager::OnLoadJoystickConfigAndInfo(command.text, 0); break;
    case Kind::kBack: taviinputmanager::doBackAction(command.number); break;
    default: SetUpHost(command); break;
  }
}

void ScriptPlayer::SetUpHost(const ScriptCommand& command) {
  switch (command.kind) {
    case Kind::kPackage: package = command.text; return;
    case Kind::kWindow:
      host_->window.width = command.size.width();
      host_->window.height = command.size.height();
      return;
    case Kind::kGuest: host_->display.setSize(command.size); return;
    case Kind::kTouchpanel: host_->touch.setSize(command.size); return;
    case Kind::kRotation: host_->rotation = command.number; return;
    case Kind::kTextField: host_->text_input = command.flag; return;
    case Kind::kEscapeBack: host_->escape_back = command.flag; return;
    case Kind::kTransparent: taviinputmanager::UpdateDisplayForceTransparent(command.number, command.flag); return;
    default: return;
  }
}

void ScriptPlayer::SendKey(QEvent::Type type, const ConfigKey& key, bool repeat) {
  modifiers_.setFlag(ModifierOf(key.scancode), type == QEvent::KeyPress);
  const QString text = key.text.size() == 1 ? key.text.toLower() : QString();
  QKeyEvent event(type, 0, modifiers_, static_cast<quint32>(key.scancode), static_cast<quint32>(key.virtual_key), 0,
                  text, repeat);
  taviinputmanager::OnQtInputEvent(&event);
}

// Gives a text field the focus while it types.
void ScriptPlayer::TypeText(const QString& text) {
  const bool was_focused = std::exchange(host_->text_input, true);
  for (const QChar character : text) {
    const auto key = tavikeymapmanager::KeyFromName(QString(character.toUpper()));
    const auto scancode = static_cast<quint32>(key ? key->scancode : 0);
    const auto virtual_key = static_cast<quint32>(key ? key->virtual_key : 0);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, 0, modifiers_, scancode, virtual_key, 0, QString(character));
      taviinputmanager::OnQtInputEvent(&event);
    }
  }
  host_->text_input = was_focused;
}

void ScriptPlayer::MovePointer(const QPointF& point) {
  position_ = point;
  clock_->SetPointer(QPoint(host_->window.x, host_->window.y) + Rounded(point));
}

void ScriptPlayer::SendMouse(QEvent::Type type, const QPointF& point, Qt::MouseButton button) {
  MovePointer(point);
  if (type == QEvent::MouseButtonRelease) {
    buttons_.setFlag(button, false);
  } else if (button != Qt::NoButton) {
    buttons_.setFlag(button, true);
  }
  QMouseEvent event(type, point, point, button, buttons_, modifiers_);
  taviinputmanager::OnQtInputEvent(&event);
}

void ScriptPlayer::SendWheel(int delta, const QPointF& point) {
  MovePointer(point);
  QWheelEvent event(point, point, QPoint(), QPoint(0, delta), buttons_, modifiers_, Qt::NoScrollPhase, false);
  taviinputmanager::OnQtInputEvent(&event);
}

void ScriptPlayer::SendTouch(QEvent::Type type, const QVector<ScriptTouch>& touches) {
  const Qt::TouchPointState state = type == QEvent::TouchBegin ? Qt::TouchPointPressed
                                    : type == QEvent::TouchEnd ? Qt::TouchPointReleased
                                                               : Qt::TouchPointMoved;
  QList<qt::TouchPoint> points;
  for (const ScriptTouch& touch : touches) points.append(qt::MakeTouchPoint(touch.id, state, touch.point));
  touches_ = touches;
  QTouchEvent event = qt::MakeTouchEvent(type, modifiers_, points);
  taviinputmanager::OnQtInputEvent(&event);
}

void ScriptPlayer::SendInputMethod(const QString& commit, const QString& preedit) {
  QInputMethodEvent event(preedit, {});
  event.setCommitString(commit);
  taviinputmanager::OnQtInputEvent(&event);
}

void ScriptPlayer::SendJoystickButton(QEvent::Type type, const QString& name) {
  taviinputmanager::JoystickButtonEvent event(type, name, 0, kGamepad);
  taviinputmanager::OnJoystickEvent(&event);
}

void ScriptPlayer::SendJoystickAxis(int stick, const QPointF& value) {
  taviinputmanager::JoystickAxisEvent event(JoystickEvent::AxisTriggle, value.x(), value.y(), stick, kGamepad);
  taviinputmanager::OnJoystickEvent(&event);
}

}  // namespace tavi
