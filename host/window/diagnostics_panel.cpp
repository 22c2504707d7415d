#include "host/window/diagnostics_panel.h"

#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "host/window/theme.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

using tavikeymapmanager::Diagnostic;

namespace {

constexpr int kMostHeight = 150;  // of the findings; more are scrolled to

bool IsError(const Diagnostic& diagnostic) { return diagnostic.severity == Diagnostic::Severity::kError; }

QString FindingHtml(const Diagnostic& diagnostic) {
  const QColor& color = IsError(diagnostic) ? theme::kError : theme::kWarning;
  return QStringLiteral("<tr><td align=right style='color:%1'>%2:%3&nbsp;</td><td style='color:%4'>%5&nbsp;</td>")
             .arg(theme::kFaintText.name())
             .arg(diagnostic.line)
             .arg(diagnostic.column)
             .arg(color.name(), IsError(diagnostic) ? QStringLiteral("error") : QStringLiteral("warning")) +
         QStringLiteral("<td>") + diagnostic.message.toHtmlEscaped() + QStringLiteral("</td></tr>");
}

// With a place for what the keymap is called.
QString StateText(bool has_errors, bool keeps_earlier) {
  if (!has_errors) return QStringLiteral("%1 is in use, but parts of it may not be as they were meant.");
  if (keeps_earlier) {
    return QStringLiteral(
        "%1 cannot be used as it is now. The one before the change stays in use until it is correct.");
  }
  return QStringLiteral("%1 cannot be used. Correct it and save it: it is read again at once.");
}

}  // namespace

DiagnosticsPanel::DiagnosticsPanel(const QString& subject, QWidget* parent)
    : QFrame(parent),
      subject_(subject),
      title_(new QLabel(this)),
      findings_(new QLabel),
      scroll_(new QScrollArea(this)) {
  findings_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  findings_->setFocusPolicy(Qt::NoFocus);
  findings_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  findings_->setFont(theme::MonospaceFont());
  scroll_->setWidget(findings_);
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 8, 12, 8);
  layout->addWidget(title_);
  layout->addWidget(scroll_);
  hide();
}

void DiagnosticsPanel::Show(const tavikeymapmanager::LoadResult& keymap, bool keeps_earlier) {
  QString rows;
  for (const Diagnostic& diagnostic : keymap.diagnostics) rows += FindingHtml(diagnostic);
  findings_->setText(QStringLiteral("<table cellspacing=0>") + rows + QStringLiteral("</table>"));
  findings_->adjustSize();
  scroll_->setFixedHeight(qMin(findings_->height(), kMostHeight));
  const QColor& color = keymap.HasErrors() ? theme::kError : theme::kWarning;
  title_->setText(QStringLiteral("<b style='color:%1'>%2</b>")
                      .arg(color.name(), StateText(keymap.HasErrors(), keeps_earlier).arg(subject_)));
  setVisible(!keymap.diagnostics.isEmpty());
}

}  // namespace tavi
