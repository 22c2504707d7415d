// What a person is asked for in a window.
#ifndef HOST_WINDOW_CONTROLS_QUESTION_H_
#define HOST_WINDOW_CONTROLS_QUESTION_H_

#include <functional>

#include <QMessageBox>
#include <QString>
#include <QVector>

class QWidget;

namespace tavi {

// A button that answers a question; `text` is what is on it, or nothing for what such buttons always have.
struct Answer {
  QMessageBox::StandardButton button = QMessageBox::NoButton;
  QString text;
};

// Puts a question to a person, who gives one of the answers. One of them is Cancel, for who gives none.
using Ask = std::function<QMessageBox::StandardButton(const QString& question, const QVector<Answer>& answers)>;
// In a dialog of this window.
Ask AskIn(QWidget* window);

// Where to save something.
struct SaveQuestion {
  QString title;
  QString proposal;  // a folder or a file
  QString types;     // as file dialogs take them
  QString suffix;    // without its dot; for names that have none
};

// Asks for the name of a file to save something in; empty when the person backs out.
using AskForName = std::function<QString(const SaveQuestion& question)>;
AskForName AskForNameIn(QWidget* window);

// Asks for a file that there is, first in `folder`; empty when the person backs out. `types` as file dialogs take them.
QString AskForFile(QWidget* window, const QString& title, const QString& folder, const QString& types);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_QUESTION_H_
