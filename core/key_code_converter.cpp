#include "core/key_code_converter.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace taviinputmanager {
namespace {

struct CodePair {
  int host;
  int guest;
};

constexpr CodePair kScanToGuest[] = {
    {69, 119},        // Pause
    {284, 96},        // keypad Enter
    {285, 97},        // right Control
    {309, 98},        // keypad divide
    {312, 100},       // right Alt
    {325, 69},        // Num Lock
    {327, 102},       // Home
    {328, 103},       // Up
    {329, 104},       // Page Up
    {331, 105},       // Left
    {333, 106},       // Right
    {335, 107},       // End
    {336, 108},       // Down
    {337, 109},       // Page Down
    {338, 110},       // Insert
    {339, 111},       // Delete
    {349, 139},       // Menu
    {2147483647, 1},  // a key without a scan code: Escape
};

constexpr CodePair kButtonToGuest[] = {
    {1, 272},   // left
    {2, 273},   // right
    {4, 274},   // middle
    {8, 278},   // back
    {16, 277},  // forward
    {32, 279},  // task
};

constexpr int kControlKeys[] = {14, 15, 28, 69, 96, 102, 103, 104, 105, 106, 107, 108, 109, 110, 111, 119, 139, 158};

template <std::size_t N>
int LookUp(const CodePair (&table)[N], int host, int otherwise) {
  const auto row =
      std::find_if(std::begin(table), std::end(table), [host](CodePair pair) { return pair.host == host; });
  return row == std::end(table) ? otherwise : row->guest;
}

}  // namespace

int KeyCodeConverter::LookUpKey(int scan) { return LookUp(kScanToGuest, scan, scan); }

int KeyCodeConverter::MouseButtonToGuestCode(int button) const { return LookUp(kButtonToGuest, button, -1); }

bool KeyCodeConverter::IsControlKey(int code) const {
  return std::binary_search(std::begin(kControlKeys), std::end(kControlKeys), code);
}

}  // namespace taviinputmanager
