#include "host/gamepad/gamepad_poll.h"

namespace tavi {

GamepadPoll::GamepadPoll(Gamepads* pads, Choice choice, QObject* parent)
    : QObject(parent), pads_(pads), choice_(std::move(choice)) {}

GamepadPoll::~GamepadPoll() = default;

bool GamepadPoll::IsSupported() { return false; }

void GamepadPoll::timerEvent(QTimerEvent* event) { QObject::timerEvent(event); }

}  // namespace tavi
