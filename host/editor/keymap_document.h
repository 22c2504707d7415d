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
  QString block;  // a block of the keymap: "settings" or "wheel"
};

// A keymap file in the editor: its text, the keymap that it contains, and the undo stack.
//
// An edit changes only the part of the text that it must, and the ordinary loader reads the result before the edit is
// applied: if the result would not load, the edit is refused. Edits identify an item by its index in the file, which is
// its index in KeymapConfig::items. Each returns the error for the user, or an empty string.
//
// Main thread.
class KeymapDocument : public QObject {
  Q_OBJECT

 public:
  explicit KeymapDocument(QObject* parent = nullptr);
  ~KeymapDocument() override;

  // Loads the file at `path` and clears the undo stack. A file with errors is loaded as well, but only for display.
  // Returns false if there is no readable file; the document is then empty.
  bool Open(const QString& path);
  // The same for text that was just read from it.
  void Open(const QString& path, const QByteArray& text);
  // A keymap without items and without a file.
  void New();

  const QString& Path() const { return path_; }  // empty: no file yet
  const QByteArray& Text() const { return text_; }
  const QByteArray& TextOnDisk() const { return text_on_disk_; }  // as last read or written here
  const tavikeymapmanager::LoadResult& Keymap() const { return keymap_; }
  const tavikeymapmanager::KeymapOutline& Outline() const { return outline_; }
  QUndoStack* UndoStack() { return &undo_; }
  bool IsModified() const { return !undo_.isClean(); }
  // Why the keymap cannot be edited; empty if it can.
  QString Refusal() const;

  int ItemCount() const { return outline_.items.size(); }
  tavikeymapmanager::ConfigItem* Item(int item) const { return keymap_.config->items[item]; }
  // The table of the item's type.
  const tavikeymapmanager::ItemTypeInfo& TypeOf(int item) const;
  // The text of a field in the file; empty if it is absent.
  QString WrittenText(int item, const QString& field) const;

  // Writes a field; `label` is one of them. An empty text removes it from the file, so that the default applies. The
  // text is converted to the field's kind, and keys are written by name.
  QString SetField(int item, const QString& field, const QString& text);
  // Edits with the same `gesture` are one undo step; an edit with 0 is a step of its own.
  QString SetPair(int item, const QString& field, const QPointF& pair, int gesture = 0);
  QString SetNumber(int item, const QString& field, double number, int gesture = 0);
  // The new item becomes the last one.
  QString Add(const QString& type, const QPointF& point);
  QString Remove(int item);
  // The copy comes right after the original, slightly offset.
  QString Duplicate(int item);

  // The part as in the file, with its comments and "
  // " line ends; empty if it is absent.
  QString Source(const KeymapPart& part) const;
  // Replaces the part; an empty text removes a block. The error has its line and column in `source`.
  QString SetSource(const KeymapPart& part, const QString& source);

  // Writes the text to the file at `path`, which becomes the document's file. On failure the file stays as it was.
  QString Save(const QString& path);
  // Another program has changed the document's file since it was read or saved here.
  bool IsFileChanged() const;

 Q_SIGNALS:
  // The text has changed.
  void Changed();

 private:
  class Edit;
  friend class Edit;

  // What an edit does to the list of items; kLeaves for an edit of a block.
  enum class Effect { kChanges, kAdds, kRemoves, kLeaves };

  void Take(const QByteArray& text);
  QString Push(const QByteArray& after, const QString& name, Effect effect, int item, int gesture = 0);
  // Whether all items except the edited one, and everything beside the items, are unchanged.
  bool LeavesOthers(const tavikeymapmanager::KeymapOutline& outline, const QByteArray& after, Effect effect,
                    int item) const;
  QStringList FieldOrder(int item) const;
  FieldValue ValueOf(int item, const QString& field, const QString& text) const;
  QSet<QString> UsedKeys() const;
  KeymapText Present() const { return {text_, outline_}; }

  const QVector<tavikeymapmanager::ItemTypeInfo> types_;
  QString path_;
  QByteArray text_;
  QByteArray text_on_disk_;  // as last read or written here
  tavikeymapmanager::LoadResult keymap_;
  tavikeymapmanager::KeymapOutline outline_;
  QUndoStack undo_;
};

}  // namespace tavi

#endif  // HOST_EDITOR_KEYMAP_DOCUMENT_H_
