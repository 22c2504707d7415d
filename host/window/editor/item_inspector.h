#ifndef HOST_WINDOW_EDITOR_ITEM_INSPECTOR_H_
#define HOST_WINDOW_EDITOR_ITEM_INSPECTOR_H_

#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "host/editor/keymap_document.h"
#include "keymapmanager/item_types.h"

class QCheckBox;
class QLabel;
class QListWidget;
class QScrollArea;

namespace tavi {

class FieldEditor;
class SourcePane;

// The items of the edited keymap and its two blocks of settings, and the fields of the selected item or the text of
// either.
class ItemInspector : public QWidget {
  Q_OBJECT

 public:
  // `document` outlives the inspector.
  explicit ItemInspector(KeymapDocument* document, QWidget* parent = nullptr);

  // -1: none; a shown block of settings stays.
  void Show(int item);
  // "settings" or "wheel".
  void ShowBlock(const QString& block);
  // Whether items are shown as the text in the file.
  void SetAsText(bool as_text);
  // Whether the item has a key in the file.
  bool HasKey() const;
  // The item's first key field waits for a key. Does nothing for an item without keys.
  void ListenForKey();
  // Applies what was typed and not confirmed yet.
  void Commit();
  // The error in the typed text that could not be applied; empty if there is none.
  QString TextProblem() const;
  // A gamepad button, for a field that waits for a key.
  void TakePad(const QString& text, bool down);
  // The field of the selected item; null if it is not shown.
  FieldEditor* Editor(const QString& field) const { return editors_.value(field); }
  SourcePane* Pane() const { return pane_; }

 Q_SIGNALS:
  void ItemChosen(int item);
  // The wait for a key is over; the focus may move on.
  void KeyBound();
  // The typed text could not be applied when it had to be.
  void Refused(const QString& problem);

 private:
  using FieldInfo = tavikeymapmanager::FieldInfo;

  void TakeDocument();
  void TakeRow(int row);
  int Row() const;
  void ShowList();
  void ShowPart();
  void ShowTitle();
  void ShowFields();
  void ShowSource();
  void EnterSource(const QString& source);
  // Applies what was typed as text, or shows why it cannot.
  void CommitSource();
  // The same, and discards the text.
  void LeavePart();
  void BuildFields(const QVector<FieldInfo>& fields);
  QVector<FieldInfo> FieldsOf(int item) const;
  bool IsShown(const FieldInfo& field) const;
  void ShowValues();
  void Enter(const QString& field, const QString& text);

  KeymapDocument* document_;
  int item_ = -1;
  QString block_;  // empty: an item, or nothing
  QListWidget* list_;
  QLabel* title_;
  QScrollArea* scroll_;
  SourcePane* pane_;
  QCheckBox* all_;
  QCheckBox* as_text_;
  QStringList built_;  // the item's type and the fields that have an editor
  QMap<QString, FieldEditor*> editors_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_ITEM_INSPECTOR_H_
