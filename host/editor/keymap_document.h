#ifndef HOST_EDITOR_KEYMAP_DOCUMENT_H_
#define HOST_EDITOR_KEYMAP_DOCUMENT_H_

#include <QByteArray>
#include <QObject>
#include <QPointF>
#include <QSet>
#include <QString>
#include <QUndoStack>

#include "host/editor/keymap_text.h"
#include "host/editor/text_change.h"
#include "keymapmanager/item_types.h"
#include "keymapmanager/keymap_file.h"
#include "keymapmanager/keymap_outline.h"

namespace tavi {

// A part of a keymap file that can be edited as text.
struct KeymapPart {
  bool IsNone() const { return item < 0 && block.isEmpty(); }
  bool operator==(const KeymapPart& other) const { return item == other.item && block == other.block; }

  int item = -1;  // its index, or -1
  QString block;  // of the keymap itself: "settings" or "wheel"
};

// A keymap file that is being edited: its text, what the loader makes of it, and the way back.
//
// Every edit changes the text where it has to and nowhere else, and is read by the ordinary loader before it counts:
// one whose result would not load is refused. Edits go by the index of an item in the file, which is that of
// KeymapConfig::items; each returns what is wrong, in words for people, or nothing.
//
// Main thread.
class KeymapDocument : public QObject {
  Q_OBJECT

 public:
  explicit KeymapDocument(QObject* parent = nullptr);
  ~KeymapDocument() override;

  // Takes the file at `path` in; the way back ends here. A file with errors is taken in as well, for looking.
  // False when there is no such file to read: the document is then empty.
  bool Open(const QString& path);
  // The same of what has just been read from it.
  void Open(const QString& path, const QByteArray& text);
  // A keymap without items, which has no file yet.
  void New();

  const QString& Path() const { return path_; }  // empty: no file yet
  const QByteArray& Text() const { return text_; }
  const QByteArray& TextOnDisk() const { return text_on_disk_; }  // as it was last read or written here
  const tavikeymapmanager::LoadResult& Keymap() const { return keymap_; }
  const tavikeymapmanager::KeymapOutline& Outline() const { return outline_; }
  QUndoStack* UndoStack() { return &undo_; }
  bool IsModified() const { return !undo_.isClean(); }
  // Why nothing can be edited; empty: it can.
  QString Refusal() const;

  int ItemCount() const { return outline_.items.size(); }
  tavikeymapmanager::ConfigItem* Item(int item) const { return keymap_.config->items[item]; }
  // The table of the item's type.
  const tavikeymapmanager::ItemTypeInfo& TypeOf(int item) const;
  // A field as the file writes it; empty when it does not.
  QString WrittenText(int item, const QString& field) const;

  // Writes a field, `label` among them; an empty text takes it out of the file, so that the default counts. What is
  // written is what the field's kind asks for, and a key goes by its name.
  QString SetField(int item, const QString& field, const QString& text);
  // Edits of one `gesture` are one step on the way back; 0 is a step of its own.
  QString SetPair(int item, const QString& field, const QPointF& pair, int gesture = 0);
  QString SetNumber(int item, const QString& field, double number, int gesture = 0);
  // The new item is the last one.
  QString Add(const QString& type, const QPointF& point);
  QString Remove(int item);
  // The new one comes right behind, a little aside.
  QString Duplicate(int item);

  // The part as the file writes it, comments included, with "\n" at the ends of lines. Empty: it is not written.
  QString Source(const KeymapPart& part) const;
  // Writes it anew as it stands there; an empty text takes a block out. What is wrong comes with its line and column
  // in `source`.
  QString SetSource(const KeymapPart& part, const QString& source);

  // Makes the text the content of the file at `path`, which is the document's file from then on. Where that fails, the
  // file stays as it was.
  QString Save(const QString& path);
  // Somebody else has written the document's file since it was read or saved here.
  bool IsFileChanged() const;

 Q_SIGNALS:
  // The text is another one.
  void Changed();

 private:
  class Edit;
  friend class Edit;

  // What an edit does to the list of items; kLeaves is one of the blocks beside it.
  enum class Effect { kChanges, kAdds, kRemoves, kLeaves };

  void Take(const QByteArray& text);
  QString Push(const QByteArray& after, const QString& name, Effect effect, int item, int gesture = 0);
  // Whether all items but the edited one, and what stands beside the items, are as they were.
  bool LeavesOthers(const tavikeymapmanager::KeymapOutline& outline, const QByteArray& after, Effect effect,
                    int item) const;
  QStringList FieldOrder(int item) const;
  FieldValue ValueOf(int item, const QString& field, const QString& text) const;
  QSet<QString> UsedKeys() const;
  KeymapText Present() const { return {text_, outline_}; }

  const QVector<tavikeymapmanager::ItemTypeInfo> types_;
  QString path_;
  QByteArray text_;
  QByteArray text_on_disk_;  // as it was last read or written here
  tavikeymapmanager::LoadResult keymap_;
  tavikeymapmanager::KeymapOutline outline_;
  QUndoStack undo_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_KEYMAP_DOCUMENT_H_
