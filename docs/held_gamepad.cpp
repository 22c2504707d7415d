// A gamepad for the pictures of the window, on machines without one: loaded before tavi (LD_PRELOAD), it gives SDL a
// virtual gamepad. The gamepad is at rest until the file in HELD_GAMEPAD exists. Then both its sticks are deflected,
// and two of its buttons are down.
#define SDL_MAIN_HANDLED

#include <SDL.h>
#include <cstdlib>
#include <dlfcn.h>
#include <unistd.h>

namespace {

struct HeldAxis {
  SDL_GameControllerAxis axis;
  Sint16 rest;
  Sint16 held;
};

// To the right and up, only to the right, and the trigger that fires.
constexpr HeldAxis kAxes[] = {
    {SDL_CONTROLLER_AXIS_LEFTX, 0, 20000},
    {SDL_CONTROLLER_AXIS_LEFTY, 0, -20000},
    {SDL_CONTROLLER_AXIS_RIGHTX, 0, 9000},
    {SDL_CONTROLLER_AXIS_TRIGGERLEFT, SDL_JOYSTICK_AXIS_MIN, SDL_JOYSTICK_AXIS_MIN},
    {SDL_CONTROLLER_AXIS_TRIGGERRIGHT, SDL_JOYSTICK_AXIS_MIN, SDL_JOYSTICK_AXIS_MAX},
};

SDL_Joystick* gamepad = nullptr;

// SDL's own function, which the one in this file overrides.
template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

int SDL_InitSubSystem(Uint32 flags) {
  const int result = Next<int(Uint32)>("SDL_InitSubSystem")(flags);
  SDL_VirtualJoystickDesc description = {};
  description.version = SDL_VIRTUAL_JOYSTICK_DESC_VERSION;
  description.type = SDL_JOYSTICK_TYPE_GAMECONTROLLER;
  description.naxes = SDL_CONTROLLER_AXIS_MAX;
  description.nbuttons = SDL_CONTROLLER_BUTTON_MAX;
  description.name = "Gamepad";
  SDL_JoystickAttachVirtualEx(&description);
  return result;
}

SDL_GameController* SDL_GameControllerOpen(int device_index) {
  SDL_GameController* controller = Next<SDL_GameController*(int)>("SDL_GameControllerOpen")(device_index);
  if (SDL_JoystickIsVirtual(device_index) == SDL_FALSE) return controller;
  gamepad = SDL_GameControllerGetJoystick(controller);
  for (const HeldAxis& row : kAxes) SDL_JoystickSetVirtualAxis(gamepad, row.axis, row.rest);
  return controller;
}

int SDL_PollEvent(SDL_Event* event) {
  const char* signal = std::getenv("HELD_GAMEPAD");
  if (gamepad && signal && access(signal, F_OK) == 0) {
    for (const HeldAxis& row : kAxes) SDL_JoystickSetVirtualAxis(gamepad, row.axis, row.held);
    SDL_JoystickSetVirtualButton(gamepad, SDL_CONTROLLER_BUTTON_A, SDL_PRESSED);
    gamepad = nullptr;  // unchanged
  }
  return Next<int(SDL_Event*)>("SDL_PollEvent")(event);
}
}
