// Conversion between Linux key codes and Windows scan codes.
//
// Keymaps and the input manager identify keys by Windows scan codes (set 1, with the extended bit as 0x100). X11,
// Wayland, evdev and SDL on Linux deliver Linux key codes, those of the kernel's input events. The two agree only for
// the keys of the oldest keyboards.
//
// Plain numbers and constant expressions: a host needs no library for them. Any thread.
#ifndef KEYMAP_SCAN_CODES_H_
#define KEYMAP_SCAN_CODES_H_

namespace tavikeymapmanager {

// X11 key codes start at 8, and so do those of everything that adopted its keyboard descriptions: Wayland's keymaps,
// and QKeyEvent::nativeScanCode under both. The kernel's codes and those in wl_keyboard events start at 0.
constexpr int kX11KeyOffset = 8;

// A key whose two codes differ.
struct KeyCodePair {
  int linux_code;  // KEY_... of the kernel
  int scancode;    // of Windows
};

// All keys whose scan code differs from their Linux code. The two are equal for Escape (1) to F10 (68), Scroll Lock and
// the keypad's keys (70 to 83), `<` beside Left Shift (86), F11 and F12 (87, 88).
constexpr KeyCodePair kDifferentKeyCodes[] = {
    {69, 325},   // Num Lock
    {89, 115},   // Ro
    {92, 121},   // Henkan
    {93, 112},   // Kana
    {94, 123},   // Muhenkan
    {95, 126},   // keypad comma of Japanese keyboards
    {96, 284},   // keypad Enter
    {97, 285},   // Right Ctrl
    {98, 309},   // keypad /
    {99, 311},   // Print Screen
    {100, 312},  // Right Alt
    {102, 327},  // Home
    {103, 328},  // Up
    {104, 329},  // Page Up
    {105, 331},  // Left
    {106, 333},  // Right
    {107, 335},  // End
    {108, 336},  // Down
    {109, 337},  // Page Down
    {110, 338},  // Insert
    {111, 339},  // Delete
    {113, 288},  // Volume Mute
    {114, 302},  // Volume Down
    {115, 304},  // Volume Up
    {116, 350},  // Power
    {117, 89},   // keypad =
    {119, 69},   // Pause
    {124, 125},  // Yen
    {125, 347},  // Left Win
    {126, 348},  // Right Win
    {127, 349},  // Menu
    {140, 289},  // Calculator
    {142, 351},  // Sleep
    {143, 355},  // Wake up
    {155, 364},  // Mail
    {156, 358},  // Bookmarks
    {157, 363},  // Computer
    {158, 362},  // Back
    {159, 361},  // Forward
    {163, 281},  // Next Track
    {164, 290},  // Play Pause
    {165, 272},  // Previous Track
    {166, 292},  // Media Stop
    {172, 306},  // Home page
    {173, 359},  // Reload
    {183, 100},  // F13
    {184, 101},  // F14
    {185, 102},  // F15
    {186, 103},  // F16
    {187, 104},  // F17
    {188, 105},  // F18
    {189, 106},  // F19
    {190, 107},  // F20
    {191, 108},  // F21
    {192, 109},  // F22
    {193, 110},  // F23
    {194, 118},  // F24
    {217, 357},  // Search
    {226, 365},  // Media player
};

// Whether the key with this code has the same code in both.
constexpr bool IsSameKeyCode(int code) {
  return (code >= 1 && code <= 68) || (code >= 70 && code <= 83) || (code >= 86 && code <= 88);
}

// The scan code of a Linux key. 0 for a key without one, and for any other number.
constexpr int ScanCodeOfLinuxKey(int linux_code) {
  if (IsSameKeyCode(linux_code)) return linux_code;
  for (const KeyCodePair& pair : kDifferentKeyCodes) {
    if (pair.linux_code == linux_code) return pair.scancode;
  }
  return 0;
}

// The reverse. 0 for a scan code that no Linux key has.
constexpr int LinuxKeyOfScanCode(int scancode) {
  if (IsSameKeyCode(scancode)) return scancode;
  for (const KeyCodePair& pair : kDifferentKeyCodes) {
    if (pair.scancode == scancode) return pair.linux_code;
  }
  return 0;
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SCAN_CODES_H_
