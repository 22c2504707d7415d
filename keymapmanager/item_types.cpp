#include "keymapmanager/item_types.h"

#include <tuple>

#include <QLocale>

#include "keymapmanager/fields/record_tables.h"

namespace tavikeymapmanager {

namespace {

// The tables return writable places; nothing here writes.
RecordRef RefOf(const ConfigItem& item) { return const_cast<ConfigItem*>(&item); }

bool IsReadable(FieldKind kind) {
  switch (kind) {
    case FieldKind::kFlag:
    case FieldKind::kInteger:
    case FieldKind::kNumber:
    case FieldKind::kPadButton:
    case FieldKind::kWord:
    case FieldKind::kPair: return true;
    default: return false;
  }
}

// Null for a field without a known value. A click without a chord is stored as a plain item, without the key's part.
const Field* FindField(const ConfigItem& item, const QString& name) {
  const RecordTable* table = FindItemTable(item.type);
  const Field* field = table == nullptr ? nullptr : table->Find(name);
  return field != nullptr && IsReadable(field->kind) ? field : nullptr;
}

QVector<double> NumbersAt(const FieldTarget& target) {
  if (const auto* integer = std::get_if<int*>(&target)) return {static_cast<double>(**integer)};
  if (const auto* number = std::get_if<double*>(&target)) return {**number};
  if (const auto* pair = std::get_if<PairTarget>(&target)) return {*pair->x, *pair->y};
  if (const auto* point = std::get_if<QPointF*>(&target)) return {(*point)->x(), (*point)->y()};
  if (const auto* size = std::get_if<QSizeF*>(&target)) return {(*size)->width(), (*size)->height()};
  return {};
}

// `numbers` has as many elements as NumbersAt returns.
void SetNumbersAt(const FieldTarget& target, const QVector<double>& numbers) {
  if (const auto* integer = std::get_if<int*>(&target)) **integer = static_cast<int>(numbers[0]);
  if (const auto* number = std::get_if<double*>(&target)) **number = numbers[0];
  if (const auto* pair = std::get_if<PairTarget>(&target))
    std::tie(*pair->x, *pair->y) = std::tie(numbers[0], numbers[1]);
  if (const auto* point = std::get_if<QPointF*>(&target)) **point = {numbers[0], numbers[1]};
  if (const auto* size = std::get_if<QSizeF*>(&target)) **size = {numbers[0], numbers[1]};
}

QString ShortestText(double value) { return QString::number(value, 'g', QLocale::FloatingPointShortest); }

}  // namespace

QVector<ItemTypeInfo> DescribeItemTypes() {
  QVector<ItemTypeInfo> types;
  for (const RecordTable& table : ItemTables()) {
    ItemTypeInfo type{table.name, table.doc, {}, table.at_least_one};
    for (const Field& field : table.fields) type.fields.append(field);
    types.append(type);
  }
  return types;
}

QVector<double> NumbersOfField(const ConfigItem& item, const QString& name) {
  const Field* field = FindField(item, name);
  return field == nullptr ? QVector<double>() : NumbersAt(field->target(RefOf(item)));
}

void SetNumbersOfField(ConfigItem* item, const QString& name, const QVector<double>& numbers) {
  const Field* field = FindField(*item, name);
  if (field == nullptr) return;
  const FieldTarget target = field->target(item);
  if (NumbersAt(target).size() == numbers.size()) SetNumbersAt(target, numbers);
}

QString TextOfField(const ConfigItem& item, const QString& name) {
  const Field* field = FindField(item, name);
  if (field == nullptr) return {};
  const FieldTarget target = field->target(RefOf(item));
  if (const auto* flag = std::get_if<bool*>(&target)) return **flag ? QStringLiteral("true") : QStringLiteral("false");
  if (const auto* text = std::get_if<QString*>(&target)) return **text;
  const QVector<double> numbers = NumbersAt(target);
  if (numbers.size() == 1) return ShortestText(numbers[0]);
  return QStringLiteral("[%1, %2]").arg(ShortestText(numbers.value(0)), ShortestText(numbers.value(1)));
}

}  // namespace tavikeymapmanager
