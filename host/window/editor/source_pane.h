#ifndef HOST_WINDOW_EDITOR_SOURCE_PANE_H_
#define HOST_WINDOW_EDITOR_SOURCE_PANE_H_

#include <QString>
#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace tavi {

// A part of a keymap as it is in the file: a text to edit, with its errors below. The text is used once it is applied.
class SourcePane : public QWidget {
  Q_OBJECT

 public:
  explicit SourcePane(QWidget* parent = nullptr);

  // `hint` is shown while the text is empty. What was typed stays if the source is the one shown before.
  void Show(const QString& source, const QString& hint);
  // Empty if there is no error.
  void ShowProblem(const QString& problem);
  QString Problem() const;
  // Applies what was typed and not applied yet.
  void Commit();
  // Discards it.
  void Revert();

  QPlainTextEdit* Text() const { return text_; }

 Q_SIGNALS:
  // The user wants the part to have this text.
  void Entered(const QString& source);

 private:
  QPlainTextEdit* text_;
  QLabel* problem_;
  QString shown_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_SOURCE_PANE_H_
