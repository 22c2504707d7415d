#include "host/picture/overlay_marks.h"

#include <algorithm>

#include "keymap/tavikeymapmanager.h"
#include "keymapmanager/key_names.h"
#include "keymapmanager/keymap_file.h"
#include "qt/numbers.h"

namespace tavi {

namespace km = tavikeymapmanager;
namespace kw = tavikeymapmanager::keywords;
using Family = OverlayMark::Family;
using Shape = OverlayMark::Shape;

namespace {

struct FamilyRow {
  const QString& type;
  Family family;
};

const FamilyRow kFamilies[] = {
    {kw::kTypeSwipehold, Family::kWalk},
    {kw::kTypeRightWalk, Family::kWalk},
    {kw::kTypeLeftStickWalk, Family::kWalk},
    {kw::kTypeVirtualLeftStick, Family::kWalk},
    {kw::kTypeVirtualLeftStickShiftButton, Family::kWalk},
    {kw::kTypeStaring, Family::kView},
    {kw::kTypeObserve, Family::kView},
    {kw::kTypeEye, Family::kView},
    {kw::kTypeGravity, Family::kView},
    {kw::kTypeRightStickEye, Family::kView},
    {kw::kTypeVirtualRightStick, Family::kView},
    {kw::kTypeSpell, Family::kCast},
    {kw::kTypeSpellCancel, Family::kCast},
    {kw::kTypeMacro, Family::kMacro},
    {kw::kTypeOperationRecorder, Family::kMacro},
};

QString NameOrNothing(const km::ConfigKey& key) { return km::IsKeySet(key) ? km::NameOfKey(key) : QString(); }

// "Left Ctrl + Q" of a chord
QString KeyText(const km::ConfigItem& item) {
  const auto* composable = dynamic_cast<const km::ComposableConfigItem*>(&item);
  const QString key = NameOrNothing(item.key);
  if (!composable || !km::IsKeySet(composable->first_key)) return key;
  return km::NameOfKey(composable->first_key) + QStringLiteral(" + ") + key;
}

template <typename Item>
void AddDirections(const Item& item, OverlayMark* mark) {
  mark->shape = Shape::kDirections;
  mark->keys = QStringList{NameOrNothing(item.key_up), NameOrNothing(item.key_right), NameOrNothing(item.key_down),
                           NameOrNothing(item.key_left)};
}

// "0,0;0,0.04", in the format of a keymap's record
QVector<QPointF> PathOf(const km::CurveConfigItem& item) {
  if (item.curve_straight) return {item.curve_start, item.curve_end};
  QVector<QPointF> path;
  for (const QString& entry : item.curve_points.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
    path.append(
        {qt::ToDouble(entry.section(QLatin1Char(','), 0, 0)), qt::ToDouble(entry.section(QLatin1Char(','), 1, 1))});
  }
  return path;
}

// The fields that a class adds to the base.
void AddShape(const km::ConfigItem& item, OverlayMark* mark) {
  if (const auto* walk = dynamic_cast<const km::SwipeholdConfigItem*>(&item)) {
    AddDirections(*walk, mark);
    mark->radius = walk->radius;
  } else if (const auto* eye = dynamic_cast<const km::EyeConfigItem*>(&item)) {
    AddDirections(*eye, mark);
  } else if (const auto* gravity = dynamic_cast<const km::GravityConfigItem*>(&item)) {
    AddDirections(*gravity, mark);
  } else if (const auto* right_walk = dynamic_cast<const km::MouseRightWalkConfigItem*>(&item)) {
    mark->radius = right_walk->walk_radius;
  } else if (const auto* stick_walk = dynamic_cast<const km::JoystickLeftWalkConfigItem*>(&item)) {
    mark->radius = stick_walk->walk_radius;
  } else if (const auto* staring = dynamic_cast<const km::StaringConfigItem*>(&item)) {
    mark->range = staring->range_size;
  } else if (const auto* curve = dynamic_cast<const km::CurveConfigItem*>(&item)) {
    mark->path = PathOf(*curve);
  }
}

// The point that a fire button or a spell touches in addition to its own.
template <typename Item>
bool TakeAlternative(const km::ConfigItem& item, OverlayMark* mark) {
  const auto* cast = dynamic_cast<const Item*>(&item);
  if (!cast || (cast->alt_rel_x == 0 && cast->alt_rel_y == 0)) return false;
  mark->point = {cast->alt_rel_x, cast->alt_rel_y};
  return true;
}

OverlayMark MarkOf(const km::ConfigItem& item, const QString& label) {
  OverlayMark mark;
  mark.family = FamilyOf(item.type);
  mark.point = {item.rel_x, item.rel_y};
  mark.label = label.isEmpty() ? item.type : label;
  const QString key = KeyText(item);
  if (!key.isEmpty()) mark.keys = QStringList(key);
  if (!TakeAlternative<km::FireConfigItem>(item, &mark)) TakeAlternative<km::SpellConfigItem>(item, &mark);
  AddShape(item, &mark);
  return mark;
}

OverlayMark* FindTwin(QVector<OverlayMark>* marks, const OverlayMark& mark) {
  if (mark.shape != Shape::kButton || !mark.HasPlace()) return nullptr;
  const auto twin = std::find_if(marks->begin(), marks->end(), [&](const OverlayMark& other) {
    return other.shape == mark.shape && other.point == mark.point && other.label == mark.label;
  });
  return twin == marks->end() ? nullptr : &*twin;
}

void AddMark(const OverlayMark& mark, QVector<OverlayMark>* marks) {
  if (OverlayMark* twin = FindTwin(marks, mark)) {
    twin->keys += mark.keys;
  } else {
    marks->append(mark);
  }
}

}  // namespace

Family FamilyOf(const QString& type) {
  for (const FamilyRow& row : kFamilies) {
    if (row.type == type) return row.family;
  }
  return Family::kTap;
}

QVector<OverlayMark> MarksOf(const km::LoadResult& keymap) {
  QVector<OverlayMark> marks;
  const auto& items = keymap.config->items;
  for (int i = 0; i < items.size(); ++i) {
    const QString label = i < keymap.item_sources.size() ? keymap.item_sources[i].label : QString();
    AddMark(MarkOf(*items[i], label), &marks);
  }
  return marks;
}

QPointF PlaceOf(const km::ConfigItem& item) { return MarkOf(item, QString()).point; }

QVector<OverlayMark> MergeMarks(QVector<OverlayMark> marks, const QVector<OverlayMark>& others) {
  for (const OverlayMark& mark : others) AddMark(mark, &marks);
  return marks;
}

}  // namespace tavi
