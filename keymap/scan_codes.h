// The scan codes of keys that a host gets from Linux.
//
// Keymaps, and so the input manager, know keys by the scan codes of Windows (set 1, the extended bit as 0x100). X11,
// Wayland, evdev and SDL on Linux deliver Linux key codes, those of the kernel's input events. The two agree for the
// keys of the oldest keyboards and nowhere else.
//
// Plain numbers and constant expressions: a host needs no library for it. Threads: any.
#ifndef KEYMAP_SCAN_CODES_H_
#define KEYMAP_SCAN_CODES_H_

namespace tavikeymapmanager {

// X11 counts its key codes from 8, and so do all who took its keyboard descriptions over: Wayland's keymaps, and Qt in
// QKeyEvent::nativeScanCode under both. The kernel and a wl_keyboard's own events count from 0.
constexpr int kX11KeyOffset = 8;

// A key that has different numbers in the two.
struct KeyCodePair {
  int linux_code;  // KEY_... of the kernel
  int scancode;    // of Windows
};

// Escape (1) to F10 (68) are the same in both, and so are the keypad's keys and Scroll Lock (70 to 83), `<` beside Left
// Shift (86), F11 and F12 (87, 88). All others that have a scan code stand here.
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

// Whether a key has this number in both.
constexpr bool IsSameKeyCode(int code) {
  return (code >= 1 && code <= 68) || (code >= 70 && code <= 83) || (code >= 86 && code <= 88);
}

// The scan code of a key of Linux; 0 for a key that has none, and for any other number.
constexpr int ScanCodeOfLinuxKey(int linux_code) {
  if (IsSameKeyCode(linux_code)) return linux_code;
  for (const KeyCodePair& pair : kDifferentKeyCodes) {
    if (pair.linux_code == linux_code) return pair.scancode;
  }
  return 0;
}

// The other way; 0 for a scan code that no key of Linux has.
constexpr int LinuxKeyOfScanCode(int scancode) {
  if (IsSameKeyCode(scancode)) return scancode;
  for (const KeyCodePair& pair : kDifferentKeyCodes) {
    if (pair.scancode == scancode) return pair.linux_code;
  }
  return 0;
}

}  // namespace tavikeymapmanager

#endif  // KEYMAP_SCAN_CODES_H_
