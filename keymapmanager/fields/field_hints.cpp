#include "keymapmanager/fields/field_hints.h"

#include <cmath>

#include <QRegularExpression>

#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/nearest_word.h"
#include "keymapmanager/yaml/yaml_scalar.h"

namespace tavikeymapmanager {

namespace {

constexpr int kMostTypesNamed = 3;
constexpr double kLargestFraction = 2;  // the maximum of any range of fractions; larger values are pixels

QStringList TypesWith(const QString& field) {
  QStringList types;
  for (const RecordTable& table : ItemTables()) {
    if (table.Find(field) != nullptr) types += table.name;
  }
  return types;
}

// "A", "A and B", "A, B and C".
QString Joined(QStringList names) {
  if (names.size() < 2) return names.join(QString());
  const QString last = names.takeLast();
  return names.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last;
}

// Where a field of that exact name belongs; empty for an unknown name.
QString HomeOf(const QString& name) {
  for (const RecordTable* table : {&SettingsTable(), &WheelTable()}) {
    if (table->name == name) return QStringLiteral("; it belongs at the top of the file");
    if (table->Find(name) != nullptr) return QStringLiteral("; it belongs under '%1'").arg(table->name);
  }
  const QStringList types = TypesWith(name);
  if (types.isEmpty()) return {};
  if (types.size() > kMostTypesNamed) return QStringLiteral("; it belongs to items of other types");
  return QStringLiteral("; it belongs to items of type %1").arg(Joined(types));
}

bool IsWholeNumber(const YamlNode& node) {
  const auto number = NumberOf(node);
  return number && *number == std::floor(*number);
}

bool AreWholeNumbers(const std::vector<YamlNode>& nodes) {
  for (const YamlNode& node : nodes) {
    if (!IsWholeNumber(node)) return false;
  }
  return true;
}

}  // namespace

QString HintForField(const QString& name, const QStringList& known) {
  const QString home = HomeOf(name);
  return home.isEmpty() ? DidYouMean(name, known) : home;
}

QString HintForNumber(const FieldInfo& field, const YamlNode& node) {
  static const QRegularExpression comma(QStringLiteral("\\A([+-]?[0-9]+),([0-9]+)\\z"));
  if (node.kind != YamlNode::Kind::kScalar) return {};
  const QRegularExpressionMatch match = comma.match(node.text);
  if (match.hasMatch()) {
    return QStringLiteral("; the decimal separator is a point: %1.%2").arg(match.captured(1), match.captured(2));
  }
  const auto number = NumberOf(node);
  const bool is_fraction = field.kind != FieldKind::kInteger && field.range.max <= kLargestFraction;
  const bool is_pixels = is_fraction && number && std::abs(*number) > kLargestFraction;
  return is_pixels ? QStringLiteral("; it is a fraction, not pixels") : QString();
}

QString DescribePair(const YamlNode& node) {
  const std::vector<YamlNode>& numbers = node.children;
  const bool has_commas = numbers.size() == 3 || numbers.size() == 4;  // in one of the numbers, or in both
  if (node.kind != YamlNode::Kind::kSequence || !has_commas || !AreWholeNumbers(numbers)) return Describe(node);
  if (numbers.size() == 3) return QStringLiteral("three numbers; the decimal separator is a point: 0.5");
  return QStringLiteral("four numbers; the decimal separator is a point: [%1.%2, %3.%4]")
      .arg(numbers[0].text, numbers[1].text, numbers[2].text, numbers[3].text);
}

}  // namespace tavikeymapmanager
