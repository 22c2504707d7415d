#include "guest/translation/scan_codes.h"

#include <linux/input-event-codes.h>

namespace taviguest {

namespace {

struct ScanCode {
  int scancode;
  int key;
};

constexpr ScanCode kExtended[] = {
    {272, KEY_PREVIOUSSONG}, {281, KEY_NEXTSONG},  {284, KEY_KPENTER},   {285, KEY_RIGHTCTRL},  {288, KEY_MUTE},
    {289, KEY_CALC},         {290, KEY_PLAYPAUSE}, {292, KEY_STOPCD},    {302, KEY_VOLUMEDOWN}, {304, KEY_VOLUMEUP},
    {306, KEY_HOMEPAGE},     {309, KEY_KPSLASH},   {311, KEY_SYSRQ},     {312, KEY_RIGHTALT},   {325, KEY_NUMLOCK},
    {327, KEY_HOME},         {328, KEY_UP},        {329, KEY_PAGEUP},    {331, KEY_LEFT},       {333, KEY_RIGHT},
    {335, KEY_END},          {336, KEY_DOWN},      {337, KEY_PAGEDOWN},  {338, KEY_INSERT},     {339, KEY_DELETE},
    {347, KEY_LEFTMETA},     {348, KEY_RIGHTMETA}, {349, KEY_COMPOSE},   {350, KEY_POWER},      {351, KEY_SLEEP},
    {355, KEY_WAKEUP},       {357, KEY_SEARCH},    {358, KEY_BOOKMARKS}, {359, KEY_REFRESH},    {361, KEY_FORWARD},
    {362, KEY_BACK},         {363, KEY_COMPUTER},  {364, KEY_MAIL},      {365, KEY_MEDIA},
};

}  // namespace

int KeyOfExtendedScanCode(int scancode) {
  for (const ScanCode& row : kExtended) {
    if (row.scancode == scancode) return row.key;
  }
  return 0;
}

}  // namespace taviguest
