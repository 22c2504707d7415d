#include "host/command/command_line.h"

#include <cmath>
#include <utility>

#include <QRegularExpression>

#include "host/system/console.h"
#include "keymapmanager/nearest_word.h"
#include "qt/numbers.h"

namespace tavi {

namespace {

constexpr int kLongestSide = 16384;

const OptionRule* FindRule(const QVector<OptionRule>& rules, const QString& name) {
  for (const OptionRule& rule : rules) {
    if (rule.name == name) return &rule;
  }
  return nullptr;
}

// Reads the words of one command line from left to right.
class ArgumentReader {
 public:
  ArgumentReader(const QStringList& words, const QVector<OptionRule>& rules) : words_(words), rules_(rules) {}

  ParsedArguments Read() {
    while (!words_.isEmpty() && result_.error.isEmpty()) ReadWord(words_.takeFirst());
    return result_;
  }

 private:
  void ReadWord(const QString& word) {
    if (word == QLatin1String("--")) {
      for (const QString& rest : std::as_const(words_)) TakePositional(rest);
      words_.clear();
      return;
    }
    if (word.startsWith(QLatin1Char('-')) && word.size() > 1) return ReadOption(word);
    TakePositional(word);
  }

  void TakePositional(const QString& word) {
    result_.positional += word;
    result_.in_order.append({QString(), word});
  }

  void ReadOption(const QString& word) {
    const int equals = word.indexOf(QLatin1Char('='));
    const QString name = word.left(equals);
    const OptionRule* rule = FindRule(rules_, name);
    if (!rule) return FailUnknown(name);
    if (!rule->takes_value && equals >= 0) return Fail(QStringLiteral("%1 takes no value").arg(name));
    if (rule->takes_value && equals < 0 && words_.isEmpty()) return Fail(QStringLiteral("%1 needs a value").arg(name));
    QString value = word.mid(equals + 1);
    if (equals < 0) value = rule->takes_value ? words_.takeFirst() : QString();
    result_.options[name] = value;
    result_.in_order.append({name, value});
  }

  void FailUnknown(const QString& name) {
    QStringList known;
    for (const OptionRule& rule : rules_) known += rule.name;
    Fail(QStringLiteral("unknown option \"%1\"").arg(name) + Suggestion(name, known));
  }

  void Fail(const QString& error) { result_.error = error; }

  QStringList words_;
  const QVector<OptionRule>& rules_;
  ParsedArguments result_;
};

QString NeedText(const GivenArgument& given, const QString& need) {
  return QStringLiteral("%1 needs %2, not \"%3\"").arg(given.option, need, given.value);
}

}  // namespace

QVector<OptionRule> OptionsOf(const char* help) {
  static const QRegularExpression form(QStringLiteral("^  (--?[a-z-]+)( [^ \n]+)?(  .*)?$"),
                                       QRegularExpression::MultilineOption);
  QVector<OptionRule> rules;
  auto lines = form.globalMatch(QString::fromUtf8(help));
  while (lines.hasNext()) {
    const QRegularExpressionMatch line = lines.next();
    rules.append({line.captured(1), !line.captured(2).isEmpty()});
  }
  return rules;
}

std::optional<GivenArgument> ParsedArguments::Find(const QString& option) const {
  if (!options.contains(option)) return std::nullopt;
  return GivenArgument{option, options[option]};
}

ParsedArguments ParseArguments(const QStringList& arguments, const QVector<OptionRule>& rules) {
  ParsedArguments result = ArgumentReader(arguments, rules).Read();
  const QStringList words = arguments.mid(0, arguments.indexOf(QStringLiteral("--")));
  result.help = words.contains(QLatin1String("--help")) || words.contains(QLatin1String("-h"));
  return result;
}

std::optional<int> ParseWholeNumber(const QString& text, int least) {
  bool is_number = false;
  const int number = qt::ToInt(text, &is_number);
  return is_number && number >= least ? std::optional<int>(number) : std::nullopt;
}

std::optional<double> ParseFactor(const QString& text) {
  bool is_number = false;
  const double number = qt::ToDouble(text, &is_number);
  return is_number && std::isfinite(number) && number > 0 ? std::optional<double>(number) : std::nullopt;
}

QSize ParseSize(const QString& text) {
  const QStringList sides = text.split(QLatin1Char('x'));
  if (sides.size() != 2) return {};
  const auto side = [](const QString& number) {
    const int value = qt::ToInt(number);
    return value >= 1 && value <= kLongestSide ? value : 0;
  };
  const QSize size(side(sides[0]), side(sides[1]));
  return size.isEmpty() ? QSize() : size;
}

QString TakeWholeNumber(const std::optional<GivenArgument>& given, int least, int* field) {
  if (!given) return {};
  const std::optional<int> number = ParseWholeNumber(given->value, least);
  if (!number) return NeedText(*given, QStringLiteral("a whole number from %1 on").arg(least));
  *field = *number;
  return {};
}

QString TakeFactor(const std::optional<GivenArgument>& given, double* field) {
  if (!given) return {};
  const std::optional<double> factor = ParseFactor(given->value);
  if (!factor) return NeedText(*given, QStringLiteral("a number above 0"));
  *field = *factor;
  return {};
}

QString TakeSize(const std::optional<GivenArgument>& given, QSize* field) {
  if (!given) return {};
  const QSize size = ParseSize(given->value);
  if (size.isEmpty()) return NeedText(*given, QStringLiteral("a size such as 1280x720"));
  *field = size;
  return {};
}

QString Suggestion(const QString& word, const QStringList& known) {
  const QString nearest = tavikeymapmanager::NearestWord(word, known);
  return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean \"%1\"?").arg(nearest);
}

int FailUsage(const QString& subcommand, const QString& error) {
  const QString name = subcommand.isEmpty() ? QStringLiteral("tavi") : QStringLiteral("tavi ") + subcommand;
  PrintError(name + QStringLiteral(": ") + error + QStringLiteral("\nTry \"") + name + QStringLiteral(" --help\".\n"));
  return kExitUsage;
}

}  // namespace tavi
