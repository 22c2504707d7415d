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

// A value to be written.
struct FieldValue {
  enum class Form {
    kText,    // text that stays text
    kPlain,   // a number, true or false, a word
    kSource,  // as a file writes it, alike in YAML and JSON: "[0.5, 0.5]"
  };

  QString text;
  Form form = Form::kText;
};

struct NamedValue {
  QString name;
  FieldValue value;
};

// A text, and where in it a part begins that was written anew.
struct PartWritten {
  QByteArray text;
  int begin = 0;  // bytes from the start
};

// The text of a keymap file, and what it would be with one thing changed. All else stays as it is, byte for byte:
// order, comments, line breaks, a byte order mark. New parts are written in the style of their neighbours: in lines of
// their own or in braces, names in quotes where the file is JSON.
//
// Items go by their index in the file. The caller makes sure that they exist, and that the result is a keymap.
class KeymapText {
 public:
  // `outline` is that of `text`.
  KeymapText(const QByteArray& text, const tavikeymapmanager::KeymapOutline& outline);

  // A new field stands behind those that `order` has in front of it.
  QByteArray WithField(int item, const QString& name, const FieldValue& value, const QStringList& order) const;
  // Of two numbers, in a list that the item writes: only one that differs is written anew.
  QByteArray WithPair(int item, const QString& name, const QPointF& pair, const QStringList& order) const;
  QByteArray WithoutField(int item, const QString& name) const;

  // The item goes with its comments: those in it and behind its lines, and those right above it unless other items
  // stand right below, which they are about as well.
  QByteArray WithoutItem(int item) const;
  // Behind the last one.
  QByteArray WithItem(const QVector<NamedValue>& fields) const;
  // The same item a second time, behind the first one.
  QByteArray WithCopy(int item) const;

  // What a person edits as text. Of an item its lines, from the dash to the comments behind them; in brackets, what
  // stands between the commas.
  tavikeymapmanager::TextRange PlaceOf(int item) const;
  PartWritten WithSource(int item, const QByteArray& source) const;
  // The same of a field of the keymap itself, its name included. Nothing when it is not written.
  std::optional<tavikeymapmanager::TextRange> PlaceOfBlock(const QString& name) const;
  // A new one stands in front of the items; an empty source takes it out.
  PartWritten WithBlock(const QString& name, const QByteArray& source) const;

  // In the line breaks of this file.
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

  // The lines of an entry of a block list, the comments behind its fields included, from the dash to the last
  // character.
  TextRange LinesOf(const ItemOutline& item) const;
  // The end of the line at `position`, or of the comments right below it that are indented by `deep` or more.
  int EndWithComments(int position, int deep) const;
  PartWritten WithNewBlock(const QByteArray& source) const;
  // Where the comments right above the item begin.
  int CommentsAbove(const ItemOutline& item) const;
  bool HasBlankAbove(const ItemOutline& item) const;
  // Widens lines that are to go, so that no two blank lines meet.
  TextRange WithBlank(TextRange lines) const;

  QByteArray EntryInBlock(const QVector<NamedValue>& fields) const;
  QByteArray FirstItem(const QVector<NamedValue>& fields) const;
  // What stands in front of an entry in brackets that comes behind this one.
  QByteArray SeparatorBehind(const ItemOutline& item) const;

  const QByteArray text_;
  const tavikeymapmanager::KeymapOutline outline_;
  const TextLines lines_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_KEYMAP_TEXT_H_
