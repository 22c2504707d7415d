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

// One field of an item: a line to type in, a choice, or a key to press, and what is wrong with it below.
class FieldEditor : public QWidget {
  Q_OBJECT

 public:
  explicit FieldEditor(const tavikeymapmanager::FieldInfo& info, QWidget* parent = nullptr);

  // `written` is what the file has, empty when it does not write the field; `in_use` what counts then.
  void Show(const QString& written, const QString& in_use);
  void ShowProblem(const QString& problem);
  // Takes over what was typed and not confirmed yet.
  void Commit();

  // Of a key; null for other fields.
  KeyListener* Listener() const { return listener_; }
  QLineEdit* Line() const { return line_; }
  // Those that Tab goes to, in their order.
  QVector<QWidget*> Controls() const;

 Q_SIGNALS:
  // A person wants the field to have this text; empty: not written.
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
  QString shown_;  // what the line had when it was last shown
};

// Whether a field of this kind is one value that a line can hold.
bool IsEditable(tavikeymapmanager::FieldKind kind);
bool IsKeyKind(tavikeymapmanager::FieldKind kind);

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_FIELD_EDITOR_H_
