#ifndef HOST_WINDOW_EDITOR_SOURCE_PANE_H_
#define HOST_WINDOW_EDITOR_SOURCE_PANE_H_

#include <QString>
#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace tavi {

// A part of a keymap as the file writes it: lines to type in, and what is wrong with them below. What is typed counts
// when it is applied.
class SourcePane : public QWidget {
  Q_OBJECT

 public:
  explicit SourcePane(QWidget* parent = nullptr);

  // `hint` stands there while nothing is written. What was typed stays as long as the source is the one shown before.
  void Show(const QString& source, const QString& hint);
  // Empty: nothing is wrong.
  void ShowProblem(const QString& problem);
  QString Problem() const;
  // Takes over what was typed and not applied yet.
  void Commit();
  // Forgets it.
  void Revert();

  QPlainTextEdit* Text() const { return text_; }

 Q_SIGNALS:
  // A person wants the part to be written like this.
  void Entered(const QString& source);

 private:
  QPlainTextEdit* text_;
  QLabel* problem_;
  QString shown_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EDITOR_SOURCE_PANE_H_
