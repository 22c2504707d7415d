#include "host/window/editor/source_pane.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "host/look/theme.h"

namespace tavi {

SourcePane::SourcePane(QWidget* parent) : QWidget(parent), text_(new QPlainTextEdit), problem_(new QLabel) {
  text_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setAccessibleName(QStringLiteral("Lines of the file"));
  text_->setTabChangesFocus(true);  // YAML must not be indented by tabs
  problem_->setWordWrap(true);
  theme::Follow(problem_,
                [this] { problem_->setStyleSheet(QStringLiteral("color: %1").arg(theme::Colors().error.name())); });
  problem_->hide();
  auto* apply = new QPushButton(QStringLiteral("Apply"));
  apply->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
  apply->setToolTip(QStringLiteral("Apply the text (%1)").arg(apply->shortcut().toString()));
  auto* revert = new QPushButton(QStringLiteral("Revert"));
  revert->setToolTip(QStringLiteral("Discard the changes"));
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(apply);
  buttons->addWidget(revert);
  buttons->addStretch(1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_, 1);
  layout->addWidget(problem_);
  layout->addLayout(buttons);
  connect(apply, &QPushButton::clicked, this, &SourcePane::Commit);
  connect(revert, &QPushButton::clicked, this, &SourcePane::Revert);
}

void SourcePane::Show(const QString& source, const QString& hint) {
  text_->setPlaceholderText(hint);
  if (source == shown_) return;
  shown_ = source;
  Revert();
}

void SourcePane::ShowProblem(const QString& problem) {
  problem_->setText(problem);
  problem_->setVisible(!problem.isEmpty());
}

QString SourcePane::Problem() const { return problem_->text(); }

void SourcePane::Commit() {
  ShowProblem(QString());
  const QString typed = text_->toPlainText();
  if (typed != shown_) Q_EMIT Entered(typed);
}

void SourcePane::Revert() {
  text_->setPlainText(shown_);
  ShowProblem(QString());
}

}  // namespace tavi
