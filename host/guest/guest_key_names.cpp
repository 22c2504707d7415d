#include "host/guest/guest_key_names.h"

#include "keymap/scan_codes.h"
#include "keymapmanager/key_names.h"

namespace tavi {

namespace {

struct NamedCode {
  int code;
  const char* name;
};

// Codes without a keyboard key.
constexpr NamedCode kOwnNames[] = {
    {139, "Menu"},         {158, "Back"},         {272, "Mouse Left"},   {273, "Mouse Right"},
    {274, "Mouse Middle"}, {277, "Mouse Side 2"}, {278, "Mouse Side 1"}, {279, "Mouse Side 3"},
};

}  // namespace

QString NameOfGuestKey(int code) {
  for (const NamedCode& own : kOwnNames) {
    if (own.code == code) return QLatin1String(own.name);
  }
  // A scan code that the library has no guest code for is sent unchanged.
  const int scancode = tavikeymapmanager::ScanCodeOfLinuxKey(code);
  const auto key = tavikeymapmanager::KeyFromName(QStringLiteral("Scan %1").arg(scancode != 0 ? scancode : code));
  return key ? tavikeymapmanager::NameOfKey(*key) : QStringLiteral("Key %1").arg(code);
}

}  // namespace tavi
