// What a window asks the user.
#ifndef HOST_WINDOW_CONTROLS_QUESTION_H_
#define HOST_WINDOW_CONTROLS_QUESTION_H_

#include <functional>

#include <QMessageBox>
#include <QString>
#include <QVector>

class QWidget;

namespace tavi {

// A button that answers a question. `text` is its label, or empty for the standard one.
struct Answer {
  QMessageBox::StandardButton button = QMessageBox::NoButton;
  QString text;
};

// Asks the user, who gives one of the answers. One of them is Cancel, also the result of closing the dialog.
using Ask = std::function<QMessageBox::StandardButton(const QString& question, const QVector<Answer>& answers)>;
// In a dialog of this window.
Ask AskIn(QWidget* window);

// Where to save a file.
struct SaveQuestion {
  QString title;
  QString proposal;  // a folder or a file
  QString types;     // in the format of file dialogs
  QString suffix;    // without its dot; added to names that have none
};

// Asks for the name of a file to save to; empty if the user cancels.
using AskForName = std::function<QString(const SaveQuestion& question)>;
AskForName AskForNameIn(QWidget* window);

// Asks for an existing file, first in `folder`; empty if the user cancels. `types` is in the format of file dialogs.
QString AskForFile(QWidget* window, const QString& title, const QString& folder, const QString& types);

}  // namespace tavi

#endif  // HOST_WINDOW_CONTROLS_QUESTION_H_
