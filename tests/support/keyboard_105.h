// A keyboard of 105 keys, from its manufacturers' tables.
#ifndef TESTS_SUPPORT_KEYBOARD_105_H_
#define TESTS_SUPPORT_KEYBOARD_105_H_

namespace tavi {

struct KeyboardKey {
  const char* name;
  int linux_code;
  int scancode;    // Windows, set 1, the extended bit as 0x100
  int guest_code;  // the code for the guest: the Linux code, if the library has a conversion for the key
};

constexpr KeyboardKey kKeyboard105[] = {
    {"Escape", 1, 0x01, 1},
    {"1", 2, 0x02, 2},
    {"2", 3, 0x03, 3},
    {"3", 4, 0x04, 4},
    {"4", 5, 0x05, 5},
    {"5", 6, 0x06, 6},
    {"6", 7, 0x07, 7},
    {"7", 8, 0x08, 8},
    {"8", 9, 0x09, 9},
    {"9", 10, 0x0A, 10},
    {"0", 11, 0x0B, 11},
    {"Minus", 12, 0x0C, 12},
    {"Equals", 13, 0x0D, 13},
    {"Backspace", 14, 0x0E, 14},
    {"Tab", 15, 0x0F, 15},
    {"Q", 16, 0x10, 16},
    {"W", 17, 0x11, 17},
    {"E", 18, 0x12, 18},
    {"R", 19, 0x13, 19},
    {"T", 20, 0x14, 20},
    {"Y", 21, 0x15, 21},
    {"U", 22, 0x16, 22},
    {"I", 23, 0x17, 23},
    {"O", 24, 0x18, 24},
    {"P", 25, 0x19, 25},
    {"Left Bracket", 26, 0x1A, 26},
    {"Right Bracket", 27, 0x1B, 27},
    {"Enter", 28, 0x1C, 28},
    {"Left Ctrl", 29, 0x1D, 29},
    {"A", 30, 0x1E, 30},
    {"S", 31, 0x1F, 31},
    {"D", 32, 0x20, 32},
    {"F", 33, 0x21, 33},
    {"G", 34, 0x22, 34},
    {"H", 35, 0x23, 35},
    {"J", 36, 0x24, 36},
    {"K", 37, 0x25, 37},
    {"L", 38, 0x26, 38},
    {"Semicolon", 39, 0x27, 39},
    {"Apostrophe", 40, 0x28, 40},
    {"Grave", 41, 0x29, 41},
    {"Left Shift", 42, 0x2A, 42},
    {"Backslash", 43, 0x2B, 43},
    {"Z", 44, 0x2C, 44},
    {"X", 45, 0x2D, 45},
    {"C", 46, 0x2E, 46},
    {"V", 47, 0x2F, 47},
    {"B", 48, 0x30, 48},
    {"N", 49, 0x31, 49},
    {"M", 50, 0x32, 50},
    {"Comma", 51, 0x33, 51},
    {"Period", 52, 0x34, 52},
    {"Slash", 53, 0x35, 53},
    {"Right Shift", 54, 0x36, 54},
    {"Numpad Multiply", 55, 0x37, 55},
    {"Left Alt", 56, 0x38, 56},
    {"Space", 57, 0x39, 57},
    {"Caps Lock", 58, 0x3A, 58},
    {"F1", 59, 0x3B, 59},
    {"F2", 60, 0x3C, 60},
    {"F3", 61, 0x3D, 61},
    {"F4", 62, 0x3E, 62},
    {"F5", 63, 0x3F, 63},
    {"F6", 64, 0x40, 64},
    {"F7", 65, 0x41, 65},
    {"F8", 66, 0x42, 66},
    {"F9", 67, 0x43, 67},
    {"F10", 68, 0x44, 68},
    {"Num Lock", 69, 0x145, 69},
    {"Scroll Lock", 70, 0x46, 70},
    {"Numpad 7", 71, 0x47, 71},
    {"Numpad 8", 72, 0x48, 72},
    {"Numpad 9", 73, 0x49, 73},
    {"Numpad Minus", 74, 0x4A, 74},
    {"Numpad 4", 75, 0x4B, 75},
    {"Numpad 5", 76, 0x4C, 76},
    {"Numpad 6", 77, 0x4D, 77},
    {"Numpad Plus", 78, 0x4E, 78},
    {"Numpad 1", 79, 0x4F, 79},
    {"Numpad 2", 80, 0x50, 80},
    {"Numpad 3", 81, 0x51, 81},
    {"Numpad 0", 82, 0x52, 82},
    {"Numpad Decimal", 83, 0x53, 83},
    {"Less", 86, 0x56, 86},
    {"F11", 87, 0x57, 87},
    {"F12", 88, 0x58, 88},
    {"Numpad Enter", 96, 0x11C, 96},
    {"Right Ctrl", 97, 0x11D, 97},
    {"Numpad Divide", 98, 0x135, 98},
    {"Print Screen", 99, 0x137, 0x137},  // no conversion: the scan code itself
    {"Right Alt", 100, 0x138, 100},
    {"Home", 102, 0x147, 102},
    {"Up", 103, 0x148, 103},
    {"Page Up", 104, 0x149, 104},
    {"Left", 105, 0x14B, 105},
    {"Right", 106, 0x14D, 106},
    {"End", 107, 0x14F, 107},
    {"Down", 108, 0x150, 108},
    {"Page Down", 109, 0x151, 109},
    {"Insert", 110, 0x152, 110},
    {"Delete", 111, 0x153, 111},
    {"Pause", 119, 0x45, 119},
    {"Left Win", 125, 0x15B, 0x15B},   // no conversion
    {"Right Win", 126, 0x15C, 0x15C},  // no conversion
    {"Menu", 127, 0x15D, 139},         // the guest has a menu key of its own
};

static_assert(sizeof(kKeyboard105) / sizeof(kKeyboard105[0]) == 105);

}  // namespace tavi

#endif  // TESTS_SUPPORT_KEYBOARD_105_H_
