#ifndef HOST_EDITOR_TEXT_LINES_H_
#define HOST_EDITOR_TEXT_LINES_H_

#include <QByteArray>

namespace tavi {

// The lines of a text, with whatever line breaks it has. All positions are bytes from its start.
class TextLines {
 public:
  explicit TextLines(const QByteArray& text);

  const QByteArray& Break() const { return break_; }  // of the first line; "\n" in a text of one line

  // Of the line that `position` is on.
  int Begin(int position) const;
  int End(int position) const;   // where its line break stands
  int Next(int position) const;  // behind its line break
  int Above(int begin) const;    // where the line above the one that begins there begins; there is one

  // Of the line that begins at `begin`.
  bool IsBlank(int begin) const;
  bool IsComment(int begin) const;
  int Indentation(int begin) const;  // how many spaces are in front

  int SkipSpaces(int position) const;
  // White space and comments, over as many lines as there are.
  int SkipComments(int position) const;

 private:
  const QByteArray text_;
  QByteArray break_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_TEXT_LINES_H_
