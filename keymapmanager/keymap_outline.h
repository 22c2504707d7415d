// Where the items of a keymap file and their fields stand in its text: for editors that change one of them and leave
// the rest of the file as its author wrote it.
#ifndef KEYMAPMANAGER_KEYMAP_OUTLINE_H_
#define KEYMAPMANAGER_KEYMAP_OUTLINE_H_

#include <optional>

#include <QByteArray>
#include <QString>
#include <QVector>

#include "keymap/keymap_export.h"

namespace tavikeymapmanager {

// Bytes of the text, from 0; `end` is behind the last one. White space and line breaks at the end are left out.
struct TAVI_KEYMAP_RECORD TextRange {
  int Length() const { return end - begin; }

  int begin = 0;
  int end = 0;
};

struct TAVI_KEYMAP_RECORD FieldOutline {
  QString name;
  TextRange name_range;
  TextRange value;         // an anchor in front is not part of it; empty, behind the colon, where nothing is written
  bool is_scalar = false;  // neither a list nor fields
  QString text;            // of a scalar, as it is read
  QVector<TextRange> entries;  // of a list
};

// The fields of one record, and how they are written.
struct TAVI_KEYMAP_RECORD RecordOutline {
  // Null when there is no such field. Valid as long as the outline.
  const FieldOutline* Find(const QString& name) const {
    for (const FieldOutline& field : fields) {
      if (field.name == name) return &field;
    }
    return nullptr;
  }

  TextRange range;  // from the first to the last character of its fields, braces included
  bool in_braces = false;
  QVector<FieldOutline> fields;  // in the order of the file
};

struct TAVI_KEYMAP_RECORD ItemOutline : RecordOutline {
  int dash = -1;  // where the "-" stands of an entry of a block list; -1 in brackets
};

struct TAVI_KEYMAP_RECORD KeymapOutline {
  RecordOutline file;  // `format`, `name`, `package`, `items`, ...
  bool items_in_brackets = false;
  QVector<ItemOutline> items;  // in the order of the file, which is that of KeymapConfig::items
};

// The outline of a text that ReadKeymapText reads without errors. Nothing for one that is no YAML, whose parts are not
// fields, or that is not written in UTF-8. Any thread.
TAVI_KEYMAP_EXPORT std::optional<KeymapOutline> OutlineKeymap(const QByteArray& text);

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_KEYMAP_OUTLINE_H_
