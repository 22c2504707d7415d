// The words behind a subcommand.
//
// Threads: main.
#ifndef HOST_COMMAND_COMMAND_LINE_H_
#define HOST_COMMAND_COMMAND_LINE_H_

#include <optional>

#include <QMap>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tavi {

struct OptionRule {
  QString name;              // with its dashes
  bool takes_value = false;  // "--name VALUE" or "--name=VALUE"
};

// The options that a page of help lists, each at the start of a line, two spaces in: "  --name VALUE  what it does".
QVector<OptionRule> OptionsOf(const char* help);

struct GivenArgument {
  QString option;  // empty for a positional one
  QString value;   // empty for a mere flag
};

struct ParsedArguments {
  QVector<GivenArgument> in_order;  // all of them
  QStringList positional;
  QMap<QString, QString> options;  // the last value of each that was given; an empty one for a mere flag
  bool help = false;               // --help or -h was among them, whatever else is wrong
  QString error;                   // what is wrong; empty when nothing is

  // The option as it was given last; nothing when it was not.
  std::optional<GivenArgument> Find(const QString& option) const;
};

// "--" ends the options; "-" alone is no option.
ParsedArguments ParseArguments(const QStringList& arguments, const QVector<OptionRule>& rules);

// A whole number of at least `least`, a finite number above 0; nothing for any other text.
std::optional<int> ParseWholeNumber(const QString& text, int least);
std::optional<double> ParseFactor(const QString& text);

// A size such as "1280x720", each side from 1 to 16384; an empty size for anything else.
QSize ParseSize(const QString& text);

// Each puts the value of an option into `field` and returns what is wrong with it, or nothing. Of an option that was
// not given the field stays as it is.
QString TakeWholeNumber(const std::optional<GivenArgument>& given, int least, int* field);
QString TakeFactor(const std::optional<GivenArgument>& given, double* field);
QString TakeSize(const std::optional<GivenArgument>& given, QSize* field);

// "; did you mean "x"?" for the one of `known` that comes nearest to `word`, or nothing.
QString Suggestion(const QString& word, const QStringList& known);

// Tells what is wrong with the use of a subcommand and where help is; returns kExitUsage.
int FailUsage(const QString& subcommand, const QString& error);

}  // namespace tavi

#endif  // HOST_COMMAND_COMMAND_LINE_H_
