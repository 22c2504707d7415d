// The positions of a keymap file's items and fields in its text. For editors that change one of them and leave the rest
// of the file as its author wrote it.
#ifndef KEYMAPMANAGER_KEYMAP_OUTLINE_H_
#define KEYMAPMANAGER_KEYMAP_OUTLINE_H_

#include <optional>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// A range of bytes of the text, from 0. `end` is one past the last byte. Excludes trailing white space and line breaks.
struct TAVI_KEYMAP_RECORD TextRange {
  int Length() const { return end - begin; }

  int begin = 0;
  int end = 0;
};

struct TAVI_KEYMAP_RECORD FieldOutline {
  QString name;
  TextRange name_range;
  TextRange value;             // without an anchor before it; empty, after the colon, if there is no value
  bool is_scalar = false;      // neither a list nor fields
  QString text;                // of a scalar, as it is read
  QVector<TextRange> entries;  // of a list
};

// The fields of one record, and how they are written.
struct TAVI_KEYMAP_RECORD RecordOutline {
  // Null if there is no such field. Valid for as long as the outline.
  const FieldOutline* Find(const QString& name) const {
    for (const FieldOutline& field : fields) {
      if (field.name == name) return &field;
    }
    return nullptr;
  }

  TextRange range;  // from the first to the last character of its fields, including braces
  bool in_braces = false;
  QVector<FieldOutline> fields;  // in the order of the file
};

struct TAVI_KEYMAP_RECORD ItemOutline : RecordOutline {
  int dash = -1;  // position of the "-" if the item is in a block list; -1 in brackets
};

struct TAVI_KEYMAP_RECORD KeymapOutline {
  RecordOutline file;  // `format`, `name`, `package`, `items`, ...
  bool items_in_brackets = false;
  QVector<ItemOutline> items;  // in the order of the file, which is that of KeymapConfig::items
};

// The outline of a text that ReadKeymapText reads without errors. Empty if the text is not YAML, is not in UTF-8, or
// has parts that are not fields. Any thread.
TAVI_KEYMAP_EXPORT std::optional<KeymapOutline> OutlineKeymap(const QByteArray& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYMAP_OUTLINE_H_
