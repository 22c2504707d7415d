#ifndef HOST_WINDOW_ITEM_INSPECTOR_H_
#define HOST_WINDOW_ITEM_INSPECTOR_H_

#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "keymapmanager/item_types.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QScrollArea;

namespace tavi {

class FieldEditor;
class KeymapDocument;

// The items of the keymap that is being edited, and the fields of the selected one.
class ItemInspector : public QWidget {
  Q_OBJECT

 public:
  // `document` outlives the inspector.
  explicit ItemInspector(KeymapDocument* document, QWidget* parent = nullptr);

  // -1: none.
  void Show(int item);
  // Whether the item has a key in the file.
  bool HasKey() const;
  // The item's first key field waits for a key. Nothing for an item without keys.
  void ListenForKey();
  // Takes over what was typed and not confirmed yet.
  void Commit();
  // A button of a gamepad, for a field that waits for a key.
  void TakePad(const QString& text, bool down);
  // Of the selected item; null when it is not shown.
  FieldEditor* Editor(const QString& field) const { return editors_.value(field); }

 Q_SIGNALS:
  void ItemChosen(int item);
  // The wait for a key is over; keys may go elsewhere again.
  void KeyBound();

 private:
  using FieldInfo = tavikeymapmanager::FieldInfo;

  void TakeDocument();
  void ShowList();
  void ShowFields();
  void BuildFields(const QVector<FieldInfo>& fields);
  QVector<FieldInfo> FieldsOf(int item) const;
  bool IsShown(const FieldInfo& field) const;
  void ShowValues();
  void Enter(const QString& field, const QString& text);

  KeymapDocument* document_;
  int item_ = -1;
  QListWidget* list_;
  QLabel* title_;
  QScrollArea* scroll_;
  QCheckBox* all_;
  QStringList built_;  // the item's type and the fields that there are editors of
  QMap<QString, FieldEditor*> editors_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_ITEM_INSPECTOR_H_
