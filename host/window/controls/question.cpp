#include "host/window/controls/question.h"

#include <utility>

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>

namespace tavi {

namespace {

// Qt's own dialog has lists without accessible names; the desktop's dialog does not.
QString FileOf(QFileDialog* dialog) {
  const std::pair<const char*, QString> rows[] = {{"lookInCombo", QStringLiteral("Folder")},
                                                  {"fileTypeCombo", QStringLiteral("Files of type")}};
  for (const auto& [object, name] : rows) {
    if (auto* combo = dialog->findChild<QComboBox*>(QLatin1String(object))) combo->setAccessibleName(name);
  }
  return dialog->exec() == QDialog::Accepted ? dialog->selectedFiles().value(0) : QString();
}

}  // namespace

Ask AskIn(QWidget* window) {
  return [window](const QString& question, const QVector<Answer>& answers) {
    QMessageBox box(QMessageBox::Question, QStringLiteral("tavi"), question, QMessageBox::NoButton, window);
    for (const Answer& answer : answers) {
      QPushButton* button = box.addButton(answer.button);
      if (!answer.text.isEmpty()) button->setText(answer.text);
    }
    // When nothing can be saved, pressing Enter must not lose anything.
    if (box.button(QMessageBox::Save) == nullptr) box.setDefaultButton(QMessageBox::Cancel);
    return static_cast<QMessageBox::StandardButton>(box.exec());
  };
}

// The dialog adds the suffix itself, before it asks whether to replace an existing file.
AskForName AskForNameIn(QWidget* window) {
  return [window](const SaveQuestion& question) {
    QFileDialog dialog(window, question.title, QString(), question.types);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(question.suffix);
    const QFileInfo proposal(question.proposal.isEmpty() ? QDir::currentPath() : question.proposal);
    dialog.setDirectory(proposal.isDir() ? proposal.absoluteFilePath() : proposal.absolutePath());
    if (!proposal.isDir()) dialog.selectFile(proposal.fileName());
    return FileOf(&dialog);
  };
}

QString AskForFile(QWidget* window, const QString& title, const QString& folder, const QString& types) {
  QFileDialog dialog(window, title, folder, types);
  dialog.setFileMode(QFileDialog::ExistingFile);
  return FileOf(&dialog);
}

}  // namespace tavi
