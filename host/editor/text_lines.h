#ifndef HOST_EDITOR_TEXT_LINES_H_
#define HOST_EDITOR_TEXT_LINES_H_

#include <QByteArray>

namespace tavi {

// The lines of a text, with any line breaks. All positions are bytes from its start.
class TextLines {
 public:
  explicit TextLines(const QByteArray& text);

  const QByteArray& Break() const { return break_; }  // of the first line; "\n" in a text of one line

  // For the line that `position` is on.
  int Begin(int position) const;
  int End(int position) const;   // start of its line break
  int Next(int position) const;  // after its line break
  int Above(int begin) const;    // start of the line above the one that begins there; there must be one

  // For the line that begins at `begin`.
  bool IsBlank(int begin) const;
  bool IsComment(int begin) const;
  int Indentation(int begin) const;  // number of spaces at its start

  int SkipSpaces(int position) const;
  // Skips white space and comments, over as many lines as there are.
  int SkipComments(int position) const;

 private:
  const QByteArray text_;
  QByteArray break_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_TEXT_LINES_H_
