// Values in the syntax of a keymap file.
#ifndef HOST_EDITOR_YAML_TEXT_H_
#define HOST_EDITOR_YAML_TEXT_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// At most four digits after the point, without trailing zeros: "0.5", "1", "-0.0625".
QByteArray NumberText(double value);

// "[0.5, 0.25]"
QByteArray PairText(double x, double y);

enum class Quotes {
  kAsNeeded,  // only if necessary
  kSingle,
  kDouble  // always, as in JSON
};

// A scalar that YAML reads as the string `text`, on one line, anywhere in a file.
QByteArray TextScalar(const QString& text, Quotes quotes);

// A scalar that YAML reads as what `text` looks like: a number, true, a word. A text that needs quotes, or that JSON
// would need them for if `quotes` asks for them, becomes a string.
QByteArray PlainScalar(const QString& text, Quotes quotes);

}  // namespace tavi

#endif  // HOST_EDITOR_YAML_TEXT_H_
