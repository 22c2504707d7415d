// The fields of records as data: their values in a file, their meaning, and their place in the record.
//
// One row of a table contains everything about a field. The reader, the check for unknown names, the suggestions for
// misspelt names and the JSON Schema all use that row, so that a new field is a new row.
#ifndef KEYMAPMANAGER_FIELDS_FIELD_H_
#define KEYMAPMANAGER_FIELDS_FIELD_H_

#include <functional>
#include <memory>
#include <type_traits>
#include <variant>

#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>

#include "keymap/composable_config_item.h"
#include "keymap/keymap_settings.h"
#include "keymap/swipehold_config_item.h"
#include "keymap/wheel_settings.h"
#include "keymapmanager/item_types.h"

namespace tavikeymapmanager {

// The place of the value in a record.
struct PairTarget {
  double* x;
  double* y;
};
struct ChordTarget {
  ConfigKey* first_key;
  ConfigKey* key;
};
using FieldTarget = std::variant<bool*, int*, double*, QString*, QPointF*, QSizeF*, QStringList*, ConfigKey*,
                                 SwipeholdConfigItem*, PairTarget, ChordTarget>;

using RecordRef = std::variant<ConfigItem*, KeymapSettings*, WheelSettings*>;

// The record as the class that declares the member. The reference must refer to an object of that class.
template <typename Record>
Record& RecordAs(const RecordRef& record) {
  if constexpr (std::is_base_of_v<ConfigItem, Record>) {
    return static_cast<Record&>(*std::get<ConfigItem*>(record));
  } else {
    return *std::get<Record*>(record);
  }
}

struct Field : FieldInfo {
  std::function<FieldTarget(const RecordRef&)> target;
};

// Create the rows of tables, one function for each kind.
template <typename Record, typename Value>
Field MakeField(FieldKind kind, const char* name, Value Record::*member, const char* doc) {
  Field field;
  field.name = QString::fromLatin1(name);
  field.kind = kind;
  field.doc = QString::fromUtf8(doc);
  field.target = [member](const RecordRef& record) -> FieldTarget { return &(RecordAs<Record>(record).*member); };
  return field;
}

template <typename Record>
Field Flag(const char* name, bool Record::*member, const char* doc) {
  return MakeField(FieldKind::kFlag, name, member, doc);
}

template <typename Record>
Field Integer(const char* name, int Record::*member, Range range, const char* doc) {
  Field field = MakeField(FieldKind::kInteger, name, member, doc);
  field.range = range;
  return field;
}

template <typename Record>
Field Number(const char* name, double Record::*member, Range range, const char* doc) {
  Field field = MakeField(FieldKind::kNumber, name, member, doc);
  field.range = range;
  return field;
}

template <typename Record>
Field Word(const char* name, QString Record::*member, const QStringList& words, const char* doc) {
  Field field = MakeField(FieldKind::kWord, name, member, doc);
  field.words = words;
  return field;
}

// A pair that the record stores as a QPointF or QSizeF.
template <typename Record, typename Value>
Field Pair(const char* name, Value Record::*member, Range range, const char* doc) {
  Field field = MakeField(FieldKind::kPair, name, member, doc);
  field.range = range;
  return field;
}

// A pair that the record stores as two doubles.
template <typename Record>
Field Pair(const char* name, double Record::*x, double Record::*y, Range range, const char* doc) {
  Field field;
  field.name = QString::fromLatin1(name);
  field.kind = FieldKind::kPair;
  field.doc = QString::fromUtf8(doc);
  field.range = range;
  field.target = [x, y](const RecordRef& record) -> FieldTarget {
    return PairTarget{&(RecordAs<Record>(record).*x), &(RecordAs<Record>(record).*y)};
  };
  return field;
}

template <typename Record>
Field Key(const char* name, ConfigKey Record::*member, const char* doc) {
  return MakeField(FieldKind::kKey, name, member, doc);
}

template <typename Record>
Field Commands(const char* name, QStringList Record::*member, const char* doc) {
  return MakeField(FieldKind::kCommands, name, member, doc);
}

inline Field Required(Field field) {
  field.is_required = true;
  return field;
}

// A record and its fields, in the order of docs/keymap.md.
struct RecordTable {
  const Field* Find(const QString& wanted) const {
    for (const Field& field : fields) {
      if (field.name == wanted) return &field;
    }
    return nullptr;
  }

  QString name;  // an item's type; "settings", "wheel"
  QString doc;
  QVector<Field> fields;
  QVector<QStringList> at_least_one;                    // groups of which a record must have at least one field
  std::function<std::unique_ptr<ConfigItem>()> create;  // creates a new item with its defaults; settings have none
};

}  // namespace tavikeymapmanager

#endif  // KEYMAPMANAGER_FIELDS_FIELD_H_
