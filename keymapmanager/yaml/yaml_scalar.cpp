#include "keymapmanager/yaml/yaml_scalar.h"

#include <cmath>
#include <limits>

#include <QRegularExpression>

#include "qt/numbers.h"

namespace tavikeymapmanager {

namespace {

bool IsOneOf(const QString& text, std::initializer_list<const char*> words) {
  for (const char* word : words) {
    if (text == QLatin1String(word)) return true;
  }
  return false;
}

bool IsNullWord(const QString& text) { return text.isEmpty() || IsOneOf(text, {"null", "Null", "NULL", "~"}); }
bool IsTrueWord(const QString& text) { return IsOneOf(text, {"true", "True", "TRUE"}); }
bool IsFalseWord(const QString& text) { return IsOneOf(text, {"false", "False", "FALSE"}); }
bool IsNanWord(const QString& text) { return IsOneOf(text, {".nan", ".NaN", ".NAN"}); }

bool IsInfinityWord(const QString& text) {
  const bool is_signed = text.startsWith(QLatin1Char('-')) || text.startsWith(QLatin1Char('+'));
  return IsOneOf(is_signed ? text.mid(1) : text, {".inf", ".Inf", ".INF"});
}

bool Matches(const QRegularExpression& form, const QString& text) { return form.match(text).hasMatch(); }

bool IsDecimal(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A[-+]?[0-9]+\\z"));
  return Matches(form, text);
}

bool IsOctal(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A0o[0-7]+\\z"));
  return Matches(form, text);
}

bool IsHexadecimal(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A0x[0-9a-fA-F]+\\z"));
  return Matches(form, text);
}

bool IsFloat(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A[-+]?(\\.[0-9]+|[0-9]+(\\.[0-9]*)?)([eE][-+]?[0-9]+)?\\z"));
  return Matches(form, text) || IsInfinityWord(text) || IsNanWord(text);
}

ScalarType PlainTypeOf(const QString& text) {
  if (IsNullWord(text)) return ScalarType::kNull;
  if (IsTrueWord(text) || IsFalseWord(text)) return ScalarType::kBool;
  if (IsDecimal(text) || IsOctal(text) || IsHexadecimal(text)) return ScalarType::kInteger;
  return IsFloat(text) ? ScalarType::kFloat : ScalarType::kText;
}

// In doubles: larger values than 2^53 are rounded, huge ones are infinite, and no field accepts them.
double DigitsToNumber(const QString& digits, int base) {
  double value = 0;
  for (const QChar digit : digits) value = value * base + QString(digit).toInt(nullptr, base);
  return value;
}

double PlainNumber(const QString& text) {
  if (IsOctal(text)) return DigitsToNumber(text.mid(2), 8);
  if (IsHexadecimal(text)) return DigitsToNumber(text.mid(2), 16);
  if (IsNanWord(text)) return std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  if (IsInfinityWord(text)) return text.startsWith(QLatin1Char('-')) ? -infinity : infinity;
  return qt::ToDouble(text);  // infinite if it is too large
}

}  // namespace

ScalarType ScalarTypeOf(const YamlNode& node) { return node.quoted ? ScalarType::kText : PlainTypeOf(node.text); }

std::optional<bool> BoolOf(const YamlNode& node) {
  if (node.kind != YamlNode::Kind::kScalar || ScalarTypeOf(node) != ScalarType::kBool) return {};
  return IsTrueWord(node.text);
}

std::optional<double> NumberOf(const YamlNode& node) {
  if (node.kind != YamlNode::Kind::kScalar) return {};
  const ScalarType type = ScalarTypeOf(node);
  if (type != ScalarType::kInteger && type != ScalarType::kFloat) return {};
  return PlainNumber(node.text);
}

std::optional<QString> TextOf(const YamlNode& node) {
  if (node.kind != YamlNode::Kind::kScalar || ScalarTypeOf(node) != ScalarType::kText) return {};
  return node.text;
}

bool IsNull(const YamlNode& node) {
  return node.kind == YamlNode::Kind::kScalar && ScalarTypeOf(node) == ScalarType::kNull;
}

QString Shown(const QString& text) {
  constexpr int kMostShown = 40;
  const QString line = text.simplified();
  return line.size() > kMostShown ? line.left(kMostShown) + QStringLiteral("...") : line;
}

QString Describe(const YamlNode& node) {
  if (node.kind == YamlNode::Kind::kSequence) return QStringLiteral("a list");
  if (node.kind == YamlNode::Kind::kMapping) return QStringLiteral("fields");
  const QString text = Shown(node.text);
  switch (ScalarTypeOf(node)) {
    case ScalarType::kNull: return QStringLiteral("nothing");
    case ScalarType::kBool: return text;
    case ScalarType::kInteger:
    case ScalarType::kFloat: return QStringLiteral("the number %1").arg(text);
    case ScalarType::kText: break;
  }
  return QStringLiteral("the text '%1'").arg(text);
}

}  // namespace tavikeymapmanager
