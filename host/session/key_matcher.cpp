#include "host/session/key_matcher.h"

#include <utility>

#include "keymap/keywords.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace km = tavikeymapmanager;
using Kind = HostEvent::Kind;

void KeyMatcher::SetKeymaps(const km::LoadResult* keymap, const km::LoadResult* joystick) {
  keymap_ = {keymap, {}};
  joystick_ = {joystick, {}};
  if (keymap) keymap_.index.Follow(keymap->config->items);
  if (joystick) joystick_.index.Follow(joystick->config->items);
  armed_ = {};
  chords_.clear();
}

QString KeyMatcher::Source::Describe(const km::ConfigItem* item) const {
  if (!item || !keymap) return {};
  const int number = keymap->config->items.indexOf(const_cast<km::ConfigItem*>(item));
  if (number < 0 || number >= keymap->item_sources.size()) return item->type;
  const km::ItemSource& source = keymap->item_sources[number];
  return QStringLiteral("%1, line %2").arg(source.label.isEmpty() ? item->type : source.label).arg(source.line);
}

QString KeyMatcher::Match(const HostEvent& event) {
  if (!km::IsKeySet(event.key)) return {};
  return km::IsJoystickKey(event.key) ? MatchPad(event) : MatchKey(event);
}

QString KeyMatcher::MatchKey(const HostEvent& event) {
  const km::ItemIndex& index = keymap_.index;
  if (event.key.device != km::keywords::kDeviceKeyboard) return keymap_.Describe(index.FindAlone(event.key));
  if (event.repeats) return {};  // the library drops them
  if (event.kind == Kind::kRelease) {
    const km::ConfigItem* item = chords_.take(event.key.scancode);
    if (!item) item = index.FindAlone(event.key);
    if (!item && km::IsSameKey(event.key, armed_)) armed_ = {};
    return keymap_.Describe(item);
  }
  const km::ConfigItem* chord = km::IsKeySet(armed_) ? index.FindChord(armed_, event.key) : nullptr;
  if (chord) chords_[event.key.scancode] = chord;
  const km::ConfigItem* item = chord ? chord : index.FindAlone(event.key);
  if (!item) armed_ = event.key;
  return keymap_.Describe(item);
}

// A chord of buttons is a key of its own, named "LB+A"; the button that is pressed last comes last.
QString KeyMatcher::MatchPad(const HostEvent& event) {
  const QString& name = event.key.text;
  if (event.kind == Kind::kRelease) held_buttons_.removeAll(name);
  QStringList texts;
  for (const QString& held : std::as_const(held_buttons_)) texts += held + QLatin1Char('+') + name;
  texts += name;
  if (event.kind == Kind::kPress && !held_buttons_.contains(name)) held_buttons_ += name;
  for (const QString& text : std::as_const(texts)) {
    if (const km::ConfigItem* item = joystick_.index.FindAlone(km::JoystickKey(text))) return joystick_.Describe(item);
  }
  return {};
}

}  // namespace tavi
