#include "guest/translation/text_typing.h"

#include <cstdio>
#include <linux/input-event-codes.h>

#include "guest/line/utf8.h"
#include "guest/translation/device_description.h"
#include "guest/translation/event_frame.h"
#include "guest/translation/typed_keys.h"

namespace taviguest {

namespace {

void Press(int code, bool down, KernelEvents* events) {
  Append(EventFrame(KernelDevice::kKeyboard).Key(code, down).Close(), events);
}

void Click(const TypedKey& key, KernelEvents* events) {
  if (key.modifier != 0) Press(key.modifier, true, events);
  Press(key.code, true, events);
  Press(key.code, false, events);
  if (key.modifier != 0) Press(key.modifier, false, events);
}

std::string NameOfCharacter(char32_t character) {
  char name[16];
  std::snprintf(name, sizeof(name), "U+%04X", static_cast<unsigned>(character));
  return name;
}

Translation ClickOf(int code) {
  Translation result;
  Click({code}, &result.events);
  return result;
}

}  // namespace

Translation TypeText(std::string_view text, const GuestOptions& options) {
  Translation result;
  std::string missing;
  while (!text.empty()) {
    const Utf8Character character = FirstCharacter(text);
    text.remove_prefix(character.bytes);
    const std::optional<TypedKey> key = KeyThatTypes(character.code);
    if (key && HasKey(KernelDevice::kKeyboard, key->code, options)) {
      Click(*key, &result.events);
    } else {
      missing += (missing.empty() ? "" : ", ") + NameOfCharacter(character.code);
    }
  }
  if (!missing.empty()) result.problem = "no key types " + missing;
  return result;
}

Translation TypeControl(std::string_view name) {
  if (name == "ENTER") return ClickOf(KEY_ENTER);
  if (name == "BACKSPACE") return ClickOf(KEY_BACKSPACE);
  return {{}, "there is no such control"};
}

}  // namespace taviguest
