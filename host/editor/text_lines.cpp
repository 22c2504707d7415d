#include "host/editor/text_lines.h"

namespace tavi {

namespace {

bool IsBreak(char byte) { return byte == '\n' || byte == '\r'; }
bool IsSpace(char byte) { return byte == ' ' || byte == '\t'; }

}  // namespace

TextLines::TextLines(const QByteArray& text) : text_(text) {
  const int end = End(0);
  break_ = end == text_.size() ? QByteArray("\n") : text_.mid(end, Next(0) - end);
}

int TextLines::Begin(int position) const {
  while (position > 0 && !IsBreak(text_[position - 1])) --position;
  return position;
}

int TextLines::End(int position) const {
  while (position < text_.size() && !IsBreak(text_[position])) ++position;
  return position;
}

int TextLines::Next(int position) const {
  const int end = End(position);
  if (end == text_.size()) return end;
  return text_.mid(end, 2) == "\r\n" ? end + 2 : end + 1;
}

int TextLines::Above(int begin) const {
  const bool is_double = begin > 1 && text_.mid(begin - 2, 2) == "\r\n";
  return Begin(begin - (is_double ? 2 : 1));
}

bool TextLines::IsBlank(int begin) const { return SkipSpaces(begin) == End(begin); }

bool TextLines::IsComment(int begin) const {
  const int first = SkipSpaces(begin);
  return first < text_.size() && text_[first] == '#';
}

int TextLines::Indentation(int begin) const { return SkipSpaces(begin) - begin; }

int TextLines::SkipSpaces(int position) const {
  while (position < text_.size() && IsSpace(text_[position])) ++position;
  return position;
}

int TextLines::SkipComments(int position) const {
  for (;;) {
    position = SkipSpaces(position);
    if (position == text_.size()) return position;
    if (text_[position] == '#') position = End(position);
    if (position < text_.size() && !IsBreak(text_[position])) return position;
    position = Next(position);
  }
}

}  // namespace tavi
