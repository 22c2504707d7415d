// The item types of keymap files and their fields, from the tables that the reader uses. For editors.
#ifndef KEYMAPMANAGER_ITEM_TYPES_H_
#define KEYMAPMANAGER_ITEM_TYPES_H_

#include <QString>
#include <QStringList>
#include <QVector>

#include "keymap/config_item.h"
#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// How a field is written.
enum class FieldKind {
  kFlag,       // true or false
  kInteger,    // an integer in the range
  kNumber,     // a number in the range
  kPadButton,  // the name of a gamepad's button, without `Pad `
  kWord,       // one of `words`
  kPair,       // [x, y], both numbers in the range
  kKey,        // a key
  kChord,      // a key, or two keys of the keyboard: "Q + E"
  kStick,      // a gamepad's stick: the only key in `words`
  kCommands,   // a list of strings: the commands of a macro
  kPoints,     // a list of at least two pairs, stored as "x,y;x,y"
  kMatrix,     // a list of 16 numbers, stored joined by commas
  kWalk,       // the fields of a Swipehold item
};

struct TAVI_KEYMAP_RECORD Range {
  double min = 0;
  double max = 0;
};

struct TAVI_KEYMAP_RECORD FieldInfo {
  QString name;
  FieldKind kind = FieldKind::kFlag;
  QString doc;  // meaning and unit, for authors of keymaps
  Range range;
  QStringList words;
  bool is_required = false;
};

// One item type. `type` and `label`, which every item may have, are not in `fields`.
struct TAVI_KEYMAP_RECORD ItemTypeInfo {
  // Null if the type has no such field. Valid for as long as this record.
  const FieldInfo* Find(const QString& field) const {
    for (const FieldInfo& info : fields) {
      if (info.name == field) return &info;
    }
    return nullptr;
  }

  QString name;
  QString doc;
  QVector<FieldInfo> fields;          // in the order of docs/keymap.md
  QVector<QStringList> at_least_one;  // groups of fields; an item must have at least one of each group
};

// All item types, in the order of docs/keymap.md. Any thread.
TAVI_KEYMAP_EXPORT QVector<ItemTypeInfo> DescribeItemTypes();

// The value of a field of kind kInteger, kNumber (one number) or kPair (two), whether the file contains the field or
// not. Empty for other kinds and for fields that the item's type does not have.
TAVI_KEYMAP_EXPORT QVector<double> NumbersOfField(const ConfigItem& item, const QString& field);

// Sets the numbers of such a field. Does nothing for any other field, or if `numbers` has another size than
// NumbersOfField returns. It neither changes the file nor checks ranges: an editor uses it to preview an edit.
TAVI_KEYMAP_EXPORT void SetNumbersOfField(ConfigItem* item, const QString& field, const QVector<double>& numbers);

// The value of a field of kind kFlag, kInteger, kNumber, kPadButton, kWord or kPair in the notation of keymap files:
// "true", "0.5", "[0.5, 1]". Empty for other kinds.
TAVI_KEYMAP_EXPORT QString TextOfField(const ConfigItem& item, const QString& field);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_ITEM_TYPES_H_
