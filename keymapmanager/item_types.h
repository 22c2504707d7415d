// What a keymap file may write of its items, from the tables that the reader itself works by: for editors.
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
  kInteger,    // a whole number in the range
  kNumber,     // a number in the range
  kPadButton,  // the name of a gamepad's button, without `Pad `
  kWord,       // one of `words`
  kPair,       // [x, y], both numbers in the range
  kKey,        // a key
  kChord,      // a key, or two keys of the keyboard: "Q + E"
  kStick,      // the one key in `words`, a gamepad's stick
  kCommands,   // a list of texts: the commands of a macro
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
  QString doc;  // for authors: meaning and unit
  Range range;
  QStringList words;
  bool is_required = false;
};

// `type` and `label`, which every item may have, are left out.
struct TAVI_KEYMAP_RECORD ItemTypeInfo {
  // Null when the type has no such field.
  const FieldInfo* Find(const QString& field) const {
    for (const FieldInfo& info : fields) {
      if (info.name == field) return &info;
    }
    return nullptr;
  }

  QString name;
  QString doc;
  QVector<FieldInfo> fields;          // in the order of the reference
  QVector<QStringList> at_least_one;  // groups of which an item must write at least one
};

// All item types, in the order of the reference. Any thread.
TAVI_KEYMAP_EXPORT QVector<ItemTypeInfo> DescribeItemTypes();

// What a field of kind kInteger, kNumber (one number) or kPair (two) has in an item, be it written in the file or not.
// Nothing for other kinds and for fields that the item's type does not have.
TAVI_KEYMAP_EXPORT QVector<double> NumbersOfField(const ConfigItem& item, const QString& field);

// The value of a field of kind kFlag, kInteger, kNumber, kPadButton, kWord or kPair as a file writes it: "true", "0.5",
// "[0.5, 1]". Nothing for other kinds.
TAVI_KEYMAP_EXPORT QString TextOfField(const ConfigItem& item, const QString& field);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_ITEM_TYPES_H_
