#include "host/editor/yaml_text.h"

#include <QRegularExpression>

namespace tavi {

namespace {

constexpr int kDigits = 4;

bool IsWhole(const QRegularExpression& form, const QString& text) { return form.match(text).hasMatch(); }

// Starts with a letter, so that it is not a number; then only characters without a meaning in YAML, in brackets or
// outside.
bool IsPlainText(const QString& text) {
  static const QRegularExpression form(
      QStringLiteral("\\A\\p{L}(?:[\\p{L}\\p{N} _.()/+'!?*&%-]*[\\p{L}\\p{N}_.()/+!?%-])?\\z"));
  static const QRegularExpression word(QStringLiteral("\\A(?:null|true|false)\\z"),
                                       QRegularExpression::CaseInsensitiveOption);
  return IsWhole(form, text) && !IsWhole(word, text);
}

bool IsJsonPlain(const QString& text) {
  static const QRegularExpression form(QStringLiteral("\\A(?:true|false|-?(?:0|[1-9][0-9]*)(?:\\.[0-9]+)?)\\z"));
  return IsWhole(form, text);
}

bool HasControl(const QString& text) {
  static const QRegularExpression control(QStringLiteral("[\\x00-\\x1F\\x7F-\\x9F\\x{2028}\\x{2029}\\x{FEFF}]"));
  return control.match(text).hasMatch();
}

QString Escaped(QChar character) {
  switch (character.unicode()) {
    case '"': return QStringLiteral("\\\"");
    case '\\': return QStringLiteral("\\\\");
    case '\n': return QStringLiteral("\\n");
    case '\t': return QStringLiteral("\\t");
    default: break;
  }
  if (!HasControl(character)) return character;
  return QStringLiteral("\\u%1").arg(static_cast<int>(character.unicode()), 4, 16, QLatin1Char('0'));
}

QByteArray InDoubleQuotes(const QString& text) {
  QString quoted;
  for (const QChar character : text) quoted += Escaped(character);
  return '"' + quoted.toUtf8() + '"';
}

QByteArray InSingleQuotes(QString text) {
  return '\'' + text.replace(QLatin1Char('\''), QLatin1String("''")).toUtf8() + '\'';
}

}  // namespace

QByteArray NumberText(double value) {
  QByteArray text = QByteArray::number(value, 'f', kDigits);
  while (text.endsWith('0')) text.chop(1);
  if (text.endsWith('.')) text.chop(1);
  return text == "-0" ? QByteArray("0") : text;
}

QByteArray PairText(double x, double y) { return '[' + NumberText(x) + ", " + NumberText(y) + ']'; }

QByteArray TextScalar(const QString& text, Quotes quotes) {
  if (quotes == Quotes::kAsNeeded && IsPlainText(text)) return text.toUtf8();
  if (quotes == Quotes::kSingle && !HasControl(text)) return InSingleQuotes(text);
  return InDoubleQuotes(text);
}

QByteArray PlainScalar(const QString& text, Quotes quotes) {
  static const QRegularExpression form(QStringLiteral("\\A[A-Za-z0-9+-][A-Za-z0-9_.+-]*\\z"));
  const bool is_dash = text == QLatin1String("-");
  if (quotes == Quotes::kAsNeeded ? IsWhole(form, text) && !is_dash : IsJsonPlain(text)) return text.toUtf8();
  return TextScalar(text, quotes);
}

}  // namespace tavi
