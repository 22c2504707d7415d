#ifndef HOST_WINDOW_EDITOR_FIELD_EDITOR_H_
#define HOST_WINDOW_EDITOR_FIELD_EDITOR_H_

#include <QString>
#include <QVector>
#include <QWidget>

#include "keymapmanager/item_types.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace tavi {

class KeyListener;

// One field of an item: a line edit, a choice or a key button, with its error below.
class FieldEditor : public QWidget {
  Q_OBJECT

 public:
  explicit FieldEditor(const tavikeymapmanager::FieldInfo& info, QWidget* parent = nullptr);

  // `written` is the field's text in the file, empty if the field is absent; `in_use` is the value that applies then.
  void Show(const QString& written, const QString& in_use);
  void ShowProblem(const QString& problem);
  // Applies what was typed and not confirmed yet.
  void Commit();

  // The key button; null for other fields.
  KeyListener* Listener() const { return listener_; }
  QLineEdit* Line() const { return line_; }
  // The widgets that Tab visits, in order.
  QVector<QWidget*> Controls() const;

 Q_SIGNALS:
  // The user wants the field to have this text; empty removes it.
  void Entered(const QString& text);

 private:
  QWidget* MakeLine();
  QWidget* MakeChoice();
  QWidget* MakeKey();
  void TakeLine();

  const tavikeymapmanager::FieldInfo info_;
  QLineEdit* line_ = nullptr;
  QComboBox* choice_ = nullptr;
  KeyListener* listener_ = nullptr;
  QLabel* problem_;
  QString shown_;  // the line's text when it was last shown
};

// Whether a field of this kind is one value that a line can hold.
bool IsEditable(tavikeymapmanager::FieldKind kind);
bool IsKeyKind(tavikeymapmanager::FieldKind kind);

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_FIELD_EDITOR_H_
