#define SDL_MAIN_HANDLED  // SDL must not replace main

#include <SDL.h>
#include <algorithm>
#include <utility>

#include <QTimerEvent>

#include "host/gamepad/gamepad_poll.h"
#include "host/gamepad/gamepads.h"

namespace tavi {

namespace {

constexpr int kReadMs = 8;
constexpr int kReadWithoutPadsMs = 500;
constexpr double kMostOfAxis = 32767;  // SDL's vertical axes grow downwards, from -32768 to 32767

PadFamily FamilyOf(SDL_GameControllerType type) {
  switch (type) {
    case SDL_CONTROLLER_TYPE_PS3:
    case SDL_CONTROLLER_TYPE_PS4:
    case SDL_CONTROLLER_TYPE_PS5: return PadFamily::kPlayStation;
    default: return PadFamily::kLettered;
  }
}

QString NameOf(SDL_GameController* controller) {
  const QString name = QString::fromUtf8(SDL_GameControllerName(controller));
  return name.isEmpty() ? QStringLiteral("Gamepad") : name;
}

QString ButtonOf(const SDL_ControllerButtonEvent& event) {
  return QLatin1String(SDL_GameControllerGetStringForButton(static_cast<SDL_GameControllerButton>(event.button)));
}

QString AxisOf(const SDL_ControllerAxisEvent& event) {
  return QLatin1String(SDL_GameControllerGetStringForAxis(static_cast<SDL_GameControllerAxis>(event.axis)));
}

}  // namespace

GamepadPoll::GamepadPoll(Gamepads* pads, Choice choice, QObject* parent)
    : QObject(parent), pads_(pads), choice_(std::move(choice)) {
  SDL_SetMainReady();
  SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
  // SDL has no window here and cannot know whether one is active; Gamepads does.
  SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
  is_open_ = SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0;
  if (!is_open_) return;
  SetPace();
  ReadEvents();  // those that are connected already
}

GamepadPoll::~GamepadPoll() {
  if (!is_open_) return;
  for (const int id : pads_->Ids()) Close(id);
  SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
}

bool GamepadPoll::IsSupported() { return true; }

void GamepadPoll::timerEvent(QTimerEvent* event) {
  if (event->timerId() == reading_.timerId()) return ReadEvents();
  if (event->timerId() == sticks_.timerId()) return pads_->SendSticks();
  QObject::timerEvent(event);
}

void GamepadPoll::ReadEvents() {
  SDL_Event event;
  while (SDL_PollEvent(&event) != 0) {
    switch (event.type) {
      case SDL_CONTROLLERDEVICEADDED: Open(event.cdevice.which); break;
      case SDL_CONTROLLERDEVICEREMOVED: Close(event.cdevice.which); break;
      case SDL_CONTROLLERBUTTONDOWN:
      case SDL_CONTROLLERBUTTONUP:
        pads_->SetButton(event.cbutton.which, ButtonOf(event.cbutton), event.cbutton.state == SDL_PRESSED);
        break;
      case SDL_CONTROLLERAXISMOTION:
        pads_->SetAxis(event.caxis.which, AxisOf(event.caxis), std::max(-1.0, event.caxis.value / kMostOfAxis));
        break;
      default: break;  // the same device again as a joystick, without known buttons
    }
  }
}

// Without a gamepad, it is enough to poll for one now and then.
void GamepadPoll::SetPace() {
  const bool has_pads = pads_->Count() > 0;
  reading_.start(has_pads ? kReadMs : kReadWithoutPadsMs, Qt::PreciseTimer, this);
  if (has_pads) {
    sticks_.start(Gamepads::kStickMs, Qt::PreciseTimer, this);
  } else {
    sticks_.stop();
  }
}

void GamepadPoll::Open(int device_index) {
  if (choice_ && !choice_(QString::fromUtf8(SDL_JoystickPathForIndex(device_index)))) return;
  SDL_GameController* controller = SDL_GameControllerOpen(device_index);
  if (!controller) return;  // disconnected again, or grabbed by another program
  const int id = SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(controller));
  pads_->Add(id, NameOf(controller), FamilyOf(SDL_GameControllerGetType(controller)));
  SetPace();
}

void GamepadPoll::Close(int id) {
  pads_->Remove(id);
  SDL_GameControllerClose(SDL_GameControllerFromInstanceID(id));
  SetPace();
}

}  // namespace tavi
