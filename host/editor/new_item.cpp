#include "host/editor/new_item.h"

#include <algorithm>

#include "keymap/keywords.h"

namespace tavi {

namespace kw = tavikeymapmanager::keywords;
using Form = FieldValue::Form;

namespace {

// The key that is customary for a kind of item.
struct UsualKey {
  const QString& type;
  const char* key;
};
const UsualKey kUsualKeys[] = {
    {kw::kTypeFire, "Mouse Left"},  {kw::kTypeRightWalk, "Mouse Right"},    {kw::kTypeStaring, "Grave"},
    {kw::kTypeObserve, "Left Alt"}, {kw::kTypeSpellCancel, "Mouse Middle"},
};

// Up, right, down, left.
constexpr const char* kDirections[][4] = {
    {"W", "D", "S", "A"},
    {"Up", "Right", "Down", "Left"},
    {"I", "L", "K", "J"},
    {"Numpad 8", "Numpad 6", "Numpad 2", "Numpad 4"},
};

constexpr const char* kKeyboardKeys[] = {"Space", "E",  "Q",  "R",  "F",  "C",  "X",  "Z",  "V",  "G",  "T",  "B",
                                         "1",     "2",  "3",  "4",  "5",  "6",  "7",  "8",  "9",  "0",  "H",  "Y",
                                         "U",     "O",  "P",  "N",  "M",  "I",  "J",  "K",  "L",  "W",  "A",  "S",
                                         "D",     "F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10"};
constexpr const char* kPadKeys[] = {"Pad A",     "Pad B",    "Pad X",  "Pad Y",    "Pad RB",   "Pad LB",
                                    "Pad RT",    "Pad LT",   "Pad Up", "Pad Down", "Pad Left", "Pad Right",
                                    "Pad Start", "Pad Back", "Pad LA", "Pad RA"};

template <typename Names>
QString FirstFree(const Names& names, const QSet<QString>& used) {
  for (const char* name : names) {
    if (!used.contains(QLatin1String(name))) return QLatin1String(name);
  }
  return QLatin1String(names[0]);  // a key that is bound twice gets a diagnostic
}

QString KeyOf(const QString& type, const QSet<QString>& used, bool is_gamepad) {
  if (is_gamepad) return FirstFree(kPadKeys, used);
  for (const UsualKey& usual : kUsualKeys) {
    const QString key = QLatin1String(usual.key);
    if (usual.type == type && (!used.contains(key) || type == kw::kTypeFire)) return key;
  }
  return FirstFree(kKeyboardKeys, used);
}

QVector<NamedValue> DirectionsOf(const QSet<QString>& used) {
  const auto* free = std::find_if(std::begin(kDirections), std::end(kDirections), [&used](const auto& keys) {
    return std::none_of(std::begin(keys), std::end(keys),
                        [&used](const char* key) { return used.contains(QLatin1String(key)); });
  });
  const auto& keys = free == std::end(kDirections) ? kDirections[0] : *free;
  constexpr const char* kFields[] = {"key_up", "key_right", "key_down", "key_left"};
  QVector<NamedValue> fields;
  for (int i = 0; i < 4; ++i) fields.append({QLatin1String(kFields[i]), {QLatin1String(keys[i]), Form::kPlain}});
  return fields;
}

// How an item gets its keys, and the fields that it needs to have an effect.
struct NewItemRow {
  enum class Keys { kNone, kOne, kDirections };

  const QString& type;
  Keys keys;
  QVector<NamedValue> fields;
};

NamedValue Plain(const char* name, const char* value) {
  return {QLatin1String(name), {QLatin1String(value), Form::kPlain}};
}
NamedValue Source(const char* name, const char* value) {
  return {QLatin1String(name), {QLatin1String(value), Form::kSource}};
}

const QVector<NewItemRow>& NewItemRows() {
  using Keys = NewItemRow::Keys;
  static const QVector<NewItemRow> rows{
      {kw::kTypeClick, Keys::kOne, {}},
      {kw::kTypeBunchClick, Keys::kOne, {Plain("bunch_mode", "Continue")}},
      {kw::kTypeCurve, Keys::kOne, {Plain("curve_straight", "true"), Source("curve_end", "[0, -0.15]")}},
      {kw::kTypeWheel, Keys::kOne, {Plain("axis", "vertical"), Plain("speed", "60"), Plain("duration_ms", "160")}},
      {kw::kTypeZoom, Keys::kOne, {Plain("speed", "50"), Plain("duration_ms", "240"), Plain("start_distance", "0.05")}},
      {kw::kTypeTip, Keys::kNone, {}},
      {kw::kTypeSwipehold, Keys::kDirections, {Plain("radius", "0.08")}},
      {kw::kTypeRightWalk, Keys::kOne, {Plain("walk_radius", "0.08"), Source("character_point", "[0.5, 0.5]")}},
      {kw::kTypeLeftStickWalk, Keys::kNone, {Plain("walk_radius", "0.08")}},
      {kw::kTypeStaring, Keys::kOne, {}},
      {kw::kTypeFire, Keys::kOne, {Plain("relative_mode", "true"), Plain("range_mode", "Fire_range_unlimited")}},
      {kw::kTypeObserve, Keys::kOne, {}},
      {kw::kTypeEye, Keys::kDirections, {}},
      {kw::kTypeGravity, Keys::kDirections, {}},
      {kw::kTypeRightStickEye, Keys::kNone, {}},
      {kw::kTypeSpell,
       Keys::kOne,
       {Plain("trigger", "Spell_Trigger_On_Release_Key"),
        Plain("touch_location", "Spell_touch_location_mouse_dependence"), Source("circle_point", "[0.5, 0.5]"),
        Plain("circle_size", "0.4"), Plain("swipe_radius", "0.14")}},
      {kw::kTypeSpellCancel, Keys::kOne, {Plain("cancel_immediately", "true"), Plain("cancel_delay_ms", "20")}},
      {kw::kTypeMacro, Keys::kOne, {Source("press_commands", "[\"click_rel:(0.5,0.5)\"]")}},
      {kw::kTypeOperationRecorder, Keys::kOne, {Source("press_commands", "[\"click_rel:(0.5,0.5)\"]")}},
      {kw::kTypeVirtualLeftStick, Keys::kDirections, {}},
      {kw::kTypeVirtualRightStick, Keys::kDirections, {}},
      {kw::kTypeVirtualLeftStickShiftButton, Keys::kOne, {Plain("factor", "0.5")}},
      {kw::kTypeVirtualJoystickButton, Keys::kOne, {Plain("map_text", "A")}},
      {kw::kTypeVirtualJoystickBunchButton,
       Keys::kOne,
       {Plain("map_text", "A"), Plain("bunch_enabled", "true"), Plain("bunch_mode", "Continue")}},
  };
  return rows;
}

}  // namespace

QVector<ItemTypeGroup> ItemTypeGroups() {
  return {
      {QStringLiteral("Touch"),
       {kw::kTypeClick, kw::kTypeBunchClick, kw::kTypeCurve, kw::kTypeWheel, kw::kTypeZoom, kw::kTypeTip}},
      {QStringLiteral("Walk"), {kw::kTypeSwipehold, kw::kTypeRightWalk, kw::kTypeLeftStickWalk}},
      {QStringLiteral("View"),
       {kw::kTypeStaring, kw::kTypeFire, kw::kTypeObserve, kw::kTypeEye, kw::kTypeGravity, kw::kTypeRightStickEye}},
      {QStringLiteral("Cast"), {kw::kTypeSpell, kw::kTypeSpellCancel}},
      {QStringLiteral("Macro"), {kw::kTypeMacro, kw::kTypeOperationRecorder}},
      {QStringLiteral("Virtual gamepad"),
       {kw::kTypeVirtualLeftStick, kw::kTypeVirtualRightStick, kw::kTypeVirtualLeftStickShiftButton,
        kw::kTypeVirtualJoystickButton, kw::kTypeVirtualJoystickBunchButton}},
  };
}

QVector<NamedValue> FieldsOfNewItem(const QString& type, const QPointF& point, const QSet<QString>& used_keys,
                                    bool is_gamepad) {
  const auto& rows = NewItemRows();
  const auto row =
      std::find_if(rows.begin(), rows.end(), [&type](const NewItemRow& each) { return each.type == type; });
  if (row == rows.end()) return {};
  QVector<NamedValue> fields{{QStringLiteral("type"), {type, Form::kPlain}}};
  if (type == kw::kTypeTip) fields.append({QStringLiteral("label"), {QStringLiteral("Note"), Form::kText}});
  if (row->keys == NewItemRow::Keys::kOne) {
    fields.append({QStringLiteral("key"), {KeyOf(type, used_keys, is_gamepad), Form::kPlain}});
  }
  fields.append({QStringLiteral("point"), {QString::fromUtf8(PairText(point.x(), point.y())), Form::kSource}});
  if (row->keys == NewItemRow::Keys::kDirections) fields += DirectionsOf(used_keys);
  return fields + row->fields;
}

}  // namespace tavi
