#include "host/window/editor/field_editor.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "host/look/theme.h"
#include "host/window/editor/key_listener.h"

namespace tavi {

using tavikeymapmanager::FieldInfo;
using tavikeymapmanager::FieldKind;

namespace {

QStringList WordsOf(const FieldInfo& info) {
  if (info.kind == FieldKind::kFlag) return {QStringLiteral("true"), QStringLiteral("false")};
  return info.words;
}

}  // namespace

bool IsKeyKind(FieldKind kind) { return kind == FieldKind::kKey || kind == FieldKind::kChord; }

bool IsEditable(FieldKind kind) {
  switch (kind) {
    case FieldKind::kCommands:
    case FieldKind::kPoints:
    case FieldKind::kMatrix:
    case FieldKind::kWalk: return false;
    default: return true;
  }
}

FieldEditor::FieldEditor(const FieldInfo& info, QWidget* parent) : QWidget(parent), info_(info), problem_(new QLabel) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(2);
  const bool is_choice = info.kind == FieldKind::kFlag || info.kind == FieldKind::kWord;
  layout->addWidget(IsKeyKind(info.kind) ? MakeKey() : is_choice ? MakeChoice() : MakeLine());
  layout->addWidget(problem_);
  problem_->setWordWrap(true);
  theme::Follow(problem_,
                [this] { problem_->setStyleSheet(QStringLiteral("color: %1").arg(theme::Colors().error.name())); });
  problem_->hide();
  setToolTip(IsEditable(info.kind) ? info.doc : info.doc + QStringLiteral(" (\"As text\" changes it)"));
}

QWidget* FieldEditor::MakeLine() {
  line_ = new QLineEdit;
  line_->setEnabled(IsEditable(info_.kind));
  line_->setAccessibleName(info_.name);
  connect(line_, &QLineEdit::editingFinished, this, &FieldEditor::TakeLine);
  return line_;
}

QWidget* FieldEditor::MakeChoice() {
  choice_ = new QComboBox;
  choice_->setFocusPolicy(Qt::StrongFocus);
  choice_->setAccessibleName(info_.name);
  choice_->addItem(QString(), QString());
  for (const QString& word : WordsOf(info_)) choice_->addItem(word, word);
  choice_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(choice_, QOverload<int>::of(&QComboBox::activated), this,
          [this](int index) { Q_EMIT Entered(choice_->itemData(index).toString()); });
  return choice_;
}

QWidget* FieldEditor::MakeKey() {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  listener_ = new KeyListener(info_.kind == FieldKind::kChord);
  listener_->setAccessibleName(QStringLiteral("Press the key of %1").arg(info_.name));
  layout->addWidget(MakeLine(), 1);
  layout->addWidget(listener_, 1);
  connect(listener_, &KeyListener::Bound, this, &FieldEditor::Entered);
  return row;
}

QVector<QWidget*> FieldEditor::Controls() const {
  QVector<QWidget*> controls;
  for (QWidget* control :
       {static_cast<QWidget*>(line_), static_cast<QWidget*>(choice_), static_cast<QWidget*>(listener_)}) {
    if (control != nullptr) controls += control;
  }
  return controls;
}

void FieldEditor::Show(const QString& written, const QString& in_use) {
  ShowProblem(QString());
  if (choice_ != nullptr) {
    choice_->setItemText(0, in_use.isEmpty() || !written.isEmpty() ? QStringLiteral("not in the file")
                                                                   : QStringLiteral("%1, not in the file").arg(in_use));
    choice_->setCurrentIndex(qMax(0, choice_->findData(written)));
    return;
  }
  shown_ = written;
  line_->setText(IsEditable(info_.kind) ? written : written.simplified());
  line_->setPlaceholderText(in_use);
}

void FieldEditor::ShowProblem(const QString& problem) {
  problem_->setText(problem);
  problem_->setVisible(!problem.isEmpty());
}

void FieldEditor::Commit() {
  if (line_ != nullptr && line_->isEnabled()) TakeLine();
}

// Return and the loss of the focus both finish; a refused text is reported only once.
void FieldEditor::TakeLine() {
  if (line_->text() == shown_) return ShowProblem(QString());
  shown_ = line_->text();
  Q_EMIT Entered(shown_);
}

}  // namespace tavi
