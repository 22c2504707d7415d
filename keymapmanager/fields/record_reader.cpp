#include "keymapmanager/fields/record_reader.h"

#include <cmath>

#include <QLocale>

#include "keymapmanager/fields/field_hints.h"
#include "keymapmanager/fields/key_reader.h"
#include "keymapmanager/fields/record_tables.h"
#include "keymapmanager/keys/pad_names.h"
#include "keymapmanager/nearest_word.h"
#include "keymapmanager/yaml/yaml_scalar.h"

namespace tavikeymapmanager {

namespace {

constexpr size_t kMatrixSize = 16;
constexpr size_t kFewestPoints = 2;

bool IsInRange(double value, const Range& range) { return value >= range.min && value <= range.max; }  // not NaN

QString NumberText(double value) { return QString::number(value, 'g', QLocale::FloatingPointShortest); }

QString RangeText(const Range& range) {
  return QStringLiteral("from %1 to %2").arg(NumberText(range.min), NumberText(range.max));
}

bool IsSequence(const YamlNode& node) { return node.kind == YamlNode::Kind::kSequence; }

// The two numbers of a pair, or nothing.
struct Numbers {
  double x;
  double y;
};
std::optional<Numbers> PairOf(const Field& field, const YamlNode& node) {
  if (!IsSequence(node) || node.children.size() != 2) return {};
  const auto x = NumberOf(node.children[0]);
  const auto y = NumberOf(node.children[1]);
  if (!x || !y || !IsInRange(*x, field.range) || !IsInRange(*y, field.range)) return {};
  return Numbers{*x, *y};
}

void StorePair(const Numbers& pair, const FieldTarget& target) {
  if (const auto* point = std::get_if<QPointF*>(&target)) {
    **point = QPointF(pair.x, pair.y);
  } else if (const auto* size = std::get_if<QSizeF*>(&target)) {
    **size = QSizeF(pair.x, pair.y);
  } else {
    const auto& doubles = std::get<PairTarget>(target);
    *doubles.x = pair.x;
    *doubles.y = pair.y;
  }
}

}  // namespace

const YamlNode* FindValue(const YamlNode& mapping, const QString& name) {
  for (size_t i = 0; i < mapping.keys.size(); ++i) {
    if (mapping.keys[i].text == name) return &mapping.children[i];
  }
  return nullptr;
}

QString ExpectationOf(const Field& field) {
  switch (field.kind) {
    case FieldKind::kFlag: return QStringLiteral("expected true or false");
    case FieldKind::kInteger: return QStringLiteral("expected a whole number ") + RangeText(field.range);
    case FieldKind::kNumber: return QStringLiteral("expected a number ") + RangeText(field.range);
    case FieldKind::kPadButton: return QStringLiteral("expected the name of a gamepad button");
    case FieldKind::kWord: return QStringLiteral("expected one of ") + field.words.join(QStringLiteral(", "));
    case FieldKind::kPair: return QStringLiteral("expected [x, y], both ") + RangeText(field.range);
    case FieldKind::kKey:
    case FieldKind::kChord:
    case FieldKind::kStick: return QStringLiteral("expected a key");
    case FieldKind::kCommands: return QStringLiteral("expected a list of commands");
    case FieldKind::kPoints:
      return QStringLiteral("expected a list of at least %1 points [x, y], both %2")
          .arg(kFewestPoints)
          .arg(RangeText(field.range));
    case FieldKind::kMatrix: return QStringLiteral("expected a list of %1 numbers").arg(kMatrixSize);
    case FieldKind::kWalk: return QStringLiteral("expected the fields of a walk");
  }
  return {};
}

void RecordReader::Read(const RecordTable& table, const YamlNode& node, const QStringList& also_known,
                        const RecordRef& record) {
  QStringList known = also_known;
  for (const Field& field : table.fields) known += field.name;
  for (size_t i = 0; i < node.keys.size() && !diagnostics_->HasEnough(); ++i) {
    const QString& name = node.keys[i].text;
    if (const Field* field = table.Find(name)) {
      ReadField(*field, node.children[i], record);
    } else if (!also_known.contains(name)) {
      diagnostics_->Error(
          node.keys[i].span,
          QStringLiteral("unknown field '%1' of %2%3").arg(Shown(name), table.name, HintForField(name, known)));
    }
  }
  ReportMissing(table, node);
}

void RecordReader::ReportMissing(const RecordTable& table, const YamlNode& node) {
  for (const Field& field : table.fields) {
    if (!field.is_required || FindValue(node, field.name) != nullptr) continue;
    diagnostics_->Error(node.span, QStringLiteral("%1 without '%2'").arg(table.name, field.name));
  }
  for (const QStringList& group : table.at_least_one) {
    bool has_one = false;
    for (const QString& name : group) has_one = has_one || FindValue(node, name) != nullptr;
    if (has_one) continue;
    diagnostics_->Error(node.span,
                        QStringLiteral("%1 without any of %2").arg(table.name, group.join(QStringLiteral(", "))));
  }
}

void RecordReader::ReadField(const Field& field, const YamlNode& node, const RecordRef& record) {
  const FieldTarget target = field.target(record);
  const int errors_before = diagnostics_->ErrorCount();
  bool is_good = true;
  switch (field.kind) {
    case FieldKind::kFlag: is_good = ReadFlag(node, std::get<bool*>(target)); break;
    case FieldKind::kInteger: is_good = ReadInteger(field, node, std::get<int*>(target)); break;
    case FieldKind::kNumber: is_good = ReadNumber(field, node, std::get<double*>(target)); break;
    case FieldKind::kPadButton: is_good = ReadPadButton(node, std::get<QString*>(target)); break;
    case FieldKind::kWord: is_good = ReadWord(field, node, std::get<QString*>(target)); break;
    case FieldKind::kPair: is_good = ReadPair(field, node, target); break;
    case FieldKind::kKey:
    case FieldKind::kChord:
    case FieldKind::kStick: ReadKeys(field, node, target); break;
    case FieldKind::kCommands: is_good = ReadCommands(field, node, std::get<QStringList*>(target)); break;
    case FieldKind::kPoints: is_good = ReadPoints(field, node, std::get<QString*>(target)); break;
    case FieldKind::kMatrix: is_good = ReadMatrix(field, node, std::get<QString*>(target)); break;
    case FieldKind::kWalk: is_good = ReadWalk(node, std::get<SwipeholdConfigItem*>(target)); break;
  }
  if (is_good || diagnostics_->ErrorCount() != errors_before) return;  // reported already, at a position within it
  const QString got = field.kind == FieldKind::kPair ? DescribePair(node) : Describe(node);
  diagnostics_->Error(
      node.span,
      QStringLiteral("'%1': %2, got %3%4").arg(field.name, ExpectationOf(field), got, HintForNumber(field, node)));
}

bool RecordReader::ReadFlag(const YamlNode& node, bool* value) {
  const auto read = BoolOf(node);
  if (read) *value = *read;
  return read.has_value();
}

bool RecordReader::ReadInteger(const Field& field, const YamlNode& node, int* value) {
  const auto read = NumberOf(node);
  if (!read || !IsInRange(*read, field.range) || *read != std::floor(*read)) return false;
  *value = static_cast<int>(*read);
  return true;
}

bool RecordReader::ReadNumber(const Field& field, const YamlNode& node, double* value) {
  const auto read = NumberOf(node);
  if (!read || !IsInRange(*read, field.range)) return false;
  *value = *read;
  return true;
}

bool RecordReader::ReadWord(const Field& field, const YamlNode& node, QString* value) {
  const auto read = TextOf(node);
  if (!read) return false;
  const auto index = field.words.indexOf(*read);
  if (index >= 0) {
    *value = field.words[index];  // the shared constant
    return true;
  }
  diagnostics_->Error(node.span,
                      QStringLiteral("'%1': %2, got %3%4")
                          .arg(field.name, ExpectationOf(field), Describe(node), DidYouMean(*read, field.words)));
  return false;
}

bool RecordReader::ReadPair(const Field& field, const YamlNode& node, const FieldTarget& target) {
  const auto pair = PairOf(field, node);
  if (pair) {
    StorePair(*pair, target);
    return true;
  }
  if (!IsSequence(node) || node.children.size() != 2) return false;
  for (const YamlNode& child : node.children) {
    const auto number = NumberOf(child);
    if (number && IsInRange(*number, field.range)) continue;
    diagnostics_->Error(child.span,
                        QStringLiteral("'%1': expected a number %2, got %3%4")
                            .arg(field.name, RangeText(field.range), Describe(child), HintForNumber(field, child)));
  }
  return false;
}

bool RecordReader::ReadCommands(const Field& field, const YamlNode& node, QStringList* value) {
  if (!IsSequence(node)) return false;
  QStringList commands;
  for (const YamlNode& child : node.children) {
    if (const auto command = TextOf(child)) {
      commands += *command;
      continue;
    }
    const bool is_spaced = child.kind == YamlNode::Kind::kMapping;
    diagnostics_->Error(
        child.span, QStringLiteral("'%1': expected a command, got %2%3")
                        .arg(field.name, Describe(child),
                             is_spaced ? QStringLiteral("; write no space after the colon: 'sleep:20'") : QString()));
  }
  *value = commands;
  return true;
}

bool RecordReader::ReadPoints(const Field& field, const YamlNode& node, QString* value) {
  if (!IsSequence(node) || node.children.size() < kFewestPoints) return false;
  QStringList points;
  for (const YamlNode& child : node.children) {
    if (const auto pair = PairOf(field, child)) {
      points += NumberText(pair->x) + QLatin1Char(',') + NumberText(pair->y);
      continue;
    }
    diagnostics_->Error(child.span, QStringLiteral("'%1': expected a point [x, y], both %2, got %3")
                                        .arg(field.name, RangeText(field.range), DescribePair(child)));
  }
  *value = points.join(QLatin1Char(';'));
  return true;
}

bool RecordReader::ReadMatrix(const Field& field, const YamlNode& node, QString* value) {
  if (!IsSequence(node) || node.children.size() != kMatrixSize) return false;
  QStringList numbers;
  for (const YamlNode& child : node.children) {
    const auto number = NumberOf(child);
    if (number && IsInRange(*number, field.range)) {
      numbers += NumberText(*number);
      continue;
    }
    diagnostics_->Error(
        child.span,
        QStringLiteral("'%1': expected a number %2, got %3").arg(field.name, RangeText(field.range), Describe(child)));
  }
  *value = numbers.join(QLatin1Char(','));
  return true;
}

bool RecordReader::ReadPadButton(const YamlNode& node, QString* value) {
  const auto name = TextOf(node);
  if (!name || name->isEmpty()) return false;
  *value = PadTextFromName(*name);
  if (!IsUsualPadText(*value)) {
    diagnostics_->Warning(
        node.span,
        QStringLiteral("the virtual gamepad has no button '%1'%2").arg(Shown(*name), DidYouMean(*name, PadNames())));
  }
  return true;
}

bool RecordReader::ReadWalk(const YamlNode& node, SwipeholdConfigItem* value) {
  if (node.kind != YamlNode::Kind::kMapping) return false;
  *value = SwipeholdConfigItem();
  value->type = keywords::kTypeSwipehold;
  Read(InnerSwipeholdTable(), node, {}, static_cast<ConfigItem*>(value));
  return true;
}

void RecordReader::ReadKeys(const Field& field, const YamlNode& node, const FieldTarget& target) {
  KeyReader reader(diagnostics_);
  if (field.kind == FieldKind::kStick) {
    reader.ReadStick(node, field.words.first(), std::get<ConfigKey*>(target));
  } else if (const auto* chord = std::get_if<ChordTarget>(&target)) {
    reader.ReadChord(node, chord->first_key, chord->key);
  } else {
    reader.ReadKey(node, std::get<ConfigKey*>(target));
  }
}

}  // namespace tavikeymapmanager
