#ifndef HOST_EDITOR_KEYMAP_TEXT_H_
#define HOST_EDITOR_KEYMAP_TEXT_H_

#include <optional>

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include "host/editor/text_lines.h"
#include "host/editor/yaml_text.h"
#include "keymapmanager/keymap_outline.h"

namespace tavi {

// A value to write.
struct FieldValue {
  enum class Form {
    kText,    // a string
    kPlain,   // a number, true or false, a word
    kSource,  // a list, in the same form in YAML and JSON: "[0.5, 0.5]"
  };

  QString text;
  Form form = Form::kText;
};

struct NamedValue {
  QString name;
  FieldValue value;
};

// A text, and the start of the part in it that was rewritten.
struct PartWritten {
  QByteArray text;
  int begin = 0;  // bytes from the start
};

// The text of a keymap file, and its text after one change. Everything else stays the same, byte for byte: order,
// comments, line breaks, a byte order mark. New parts follow the style of their neighbours: on lines of their own or in
// braces, with quoted names if the file is JSON.
//
// Items are identified by their index in the file. The caller makes sure that they exist, and that the result is a
// keymap.
class KeymapText {
 public:
  // `outline` is that of `text`.
  KeymapText(const QByteArray& text, const tavikeymapmanager::KeymapOutline& outline);

  // A new field goes after those that precede it in `order`.
  QByteArray WithField(int item, const QString& name, const FieldValue& value, const QStringList& order) const;
  // Two numbers, in a list of the item; only those that differ are rewritten.
  QByteArray WithPair(int item, const QString& name, const QPointF& pair, const QStringList& order) const;
  QByteArray WithoutField(int item, const QString& name) const;

  // Removes the item with its comments: those in it and after its lines, and those right above it, unless other items
  // directly below are covered by them as well.
  QByteArray WithoutItem(int item) const;
  // After the last item.
  QByteArray WithItem(const QVector<NamedValue>& fields) const;
  // A copy of the item, after the original.
  QByteArray WithCopy(int item) const;

  // The text of a part that the user edits. For an item these are its lines from the dash to the comments after them;
  // in brackets, the text between the commas.
  tavikeymapmanager::TextRange PlaceOf(int item) const;
  PartWritten WithSource(int item, const QByteArray& source) const;
  // The same for a field of the keymap, including its name. Nothing if it is absent.
  std::optional<tavikeymapmanager::TextRange> PlaceOfBlock(const QString& name) const;
  // A new block goes before the items; an empty source removes it.
  PartWritten WithBlock(const QString& name, const QByteArray& source) const;

  // Uses the line breaks of this file.
  QByteArray InLines(const QString& source) const;

 private:
  using FieldOutline = tavikeymapmanager::FieldOutline;
  using ItemOutline = tavikeymapmanager::ItemOutline;
  using TextRange = tavikeymapmanager::TextRange;

  QByteArray Replaced(const TextRange& range, const QByteArray& by) const;
  QByteArray WithValue(const TextRange& place, const QByteArray& written) const;
  QByteArray Inserted(int at, const QByteArray& part) const { return Replaced({at, at}, part); }
  QByteArray Slice(const TextRange& range) const { return text_.mid(range.begin, range.Length()); }

  bool HasQuotedNames(const tavikeymapmanager::RecordOutline& record) const;
  bool IsFirstOnLine(int position) const;
  QByteArray IndentationOf(int position) const;
  Quotes QuotesOf(const TextRange& scalar) const;

  QByteArray WithNewField(const ItemOutline& item, const NamedValue& field, const QStringList& order) const;
  int FieldBefore(const ItemOutline& item, const QString& name, const QStringList& order) const;
  QByteArray WithoutFieldInBraces(const tavikeymapmanager::RecordOutline& record, int field) const;
  QByteArray WithoutItemInBrackets(int item) const;
  QByteArray WithCopyInBrackets(const ItemOutline& item) const;

  // The lines of an entry of a block list, from the dash to the last character, including the comments after its
  // fields.
  TextRange LinesOf(const ItemOutline& item) const;
  // The end of the line at `position`, or of the comments directly below it that are indented by at least `deep`.
  int EndWithComments(int position, int deep) const;
  PartWritten WithNewBlock(const QByteArray& source) const;
  // The start of the comments directly above the item.
  int CommentsAbove(const ItemOutline& item) const;
  bool HasBlankAbove(const ItemOutline& item) const;
  // Extends a range of lines to be removed, so that no two blank lines remain.
  TextRange WithBlank(TextRange lines) const;

  QByteArray EntryInBlock(const QVector<NamedValue>& fields) const;
  QByteArray FirstItem(const QVector<NamedValue>& fields) const;
  // The text before an entry in brackets that follows this one.
  QByteArray SeparatorBehind(const ItemOutline& item) const;

  const QByteArray text_;
  const tavikeymapmanager::KeymapOutline outline_;
  const TextLines lines_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_KEYMAP_TEXT_H_
