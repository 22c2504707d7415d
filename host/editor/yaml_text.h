// Values as a keymap file writes them.
#ifndef HOST_EDITOR_YAML_TEXT_H_
#define HOST_EDITOR_YAML_TEXT_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// At most four digits behind the point, and no zeros at the end: "0.5", "1", "-0.0625".
QByteArray NumberText(double value);

// "[0.5, 0.25]"
QByteArray PairText(double x, double y);

enum class Quotes {
  kAsNeeded,  // none where the text can do without
  kSingle,
  kDouble  // always, as JSON wants it
};

// A scalar that YAML reads as the text `text`, on one line, at any place of a file.
QByteArray TextScalar(const QString& text, Quotes quotes);

// A scalar that YAML reads as what `text` looks like: a number, true, a word. What cannot stand without quotes, or
// could not in JSON when `quotes` asks for them, becomes a text.
QByteArray PlainScalar(const QString& text, Quotes quotes);

}  // namespace tavi

#endif  // HOST_EDITOR_YAML_TEXT_H_
