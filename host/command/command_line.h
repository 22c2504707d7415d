// The arguments of a subcommand.
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

// The options in the text of a help page. Each is at the start of a line, indented by two spaces: "  --name VALUE  what
// it does".
QVector<OptionRule> OptionsOf(const char* help);

struct GivenArgument {
  QString option;  // empty for a positional argument
  QString value;   // empty for a flag
};

struct ParsedArguments {
  QVector<GivenArgument> in_order;  // all of them
  QStringList positional;
  QMap<QString, QString> options;  // the last value of each given option; an empty one for a flag
  bool help = false;               // --help or -h was among them; set even if there is an error
  QString error;                   // empty if there is none

  // The last value of the option; nothing if it was not given.
  std::optional<GivenArgument> Find(const QString& option) const;
};

// "--" ends the options; "-" alone is not an option.
ParsedArguments ParseArguments(const QStringList& arguments, const QVector<OptionRule>& rules);

// A whole number of at least `least`; a finite number above 0. Nothing for any other text.
std::optional<int> ParseWholeNumber(const QString& text, int least);
std::optional<double> ParseFactor(const QString& text);

// A size such as "1280x720", each side from 1 to 16384; an empty size for anything else.
QSize ParseSize(const QString& text);

// Each stores the value of an option in `field` and returns the error, or an empty string. If the option was not given,
// the field keeps its value.
QString TakeWholeNumber(const std::optional<GivenArgument>& given, int least, int* field);
QString TakeFactor(const std::optional<GivenArgument>& given, double* field);
QString TakeSize(const std::optional<GivenArgument>& given, QSize* field);

// "; did you mean "x"?" for the closest of `known` to `word`, or an empty string.
QString Suggestion(const QString& word, const QStringList& known);

// Prints what is wrong with the use of a subcommand and how to get help; returns kExitUsage.
int FailUsage(const QString& subcommand, const QString& error);

}  // namespace tavi

#endif  // HOST_COMMAND_COMMAND_LINE_H_
