#include "host/window/findings/diagnostics_panel.h"

#include <QLabel>
#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>

#include "host/look/theme.h"
#include "host/session/keymap_source.h"
#include "host/window/controls/control_focus.h"
#include "host/window/findings/placed_finding.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

using tavikeymapmanager::Diagnostic;

namespace {

constexpr int kMostHeight = 150;  // diagnostics; scroll to see more

bool IsError(const Diagnostic& diagnostic) { return diagnostic.severity == Diagnostic::Severity::kError; }

// The diagnostic's number on the screen, as a link; empty if it has no mark there.
QString LabelHtml(const PlacedFinding* placed) {
  if (!placed) return {};
  const QColor& color = placed->is_error ? theme::Colors().error : theme::Colors().warning;
  return QStringLiteral("<a href='%1' style='color:%2; text-decoration:none'><b>\u25CF%1</b></a>&nbsp;")
      .arg(placed->label, color.name());
}

QString MessageHtml(const QString& message, const PlacedFinding* placed) {
  const QString text = message.toHtmlEscaped();
  if (!placed) return text;
  return QStringLiteral("<a href='%1' style='color:%2; text-decoration:none'>")
             .arg(placed->label, theme::Colors().text.name()) +
         text + QStringLiteral("</a>");
}

QString FindingHtml(const Diagnostic& diagnostic, const PlacedFinding* placed) {
  const QColor& color = IsError(diagnostic) ? theme::Colors().error : theme::Colors().warning;
  return QStringLiteral("<tr><td>") + LabelHtml(placed) +
         QStringLiteral("</td><td align=right style='color:%1'>%2:%3&nbsp;</td><td style='color:%4'>%5&nbsp;</td>")
             .arg(theme::Colors().faint_text.name())
             .arg(diagnostic.line)
             .arg(diagnostic.column)
             .arg(color.name(), IsError(diagnostic) ? QStringLiteral("error") : QStringLiteral("warning")) +
         QStringLiteral("<td>") + MessageHtml(diagnostic.message, placed) + QStringLiteral("</td></tr>");
}

const PlacedFinding* FindPlaced(const QVector<PlacedFinding>& placed, int index) {
  for (const PlacedFinding& finding : placed) {
    if (finding.index == index) return &finding;
  }
  return nullptr;
}

// With a placeholder for the keymap's name.
QString StateText(bool has_errors, bool keeps_earlier) {
  if (!has_errors) return QStringLiteral("%1 is in use, but parts of it may not work as intended.");
  if (keeps_earlier) {
    return QStringLiteral(
        "%1 cannot be used as it is now. The version before the change stays in use until you correct it.");
  }
  return QStringLiteral("%1 cannot be used. Correct it and save it: it is reloaded at once.");
}

}  // namespace

DiagnosticsPanel::DiagnosticsPanel(const QString& subject, QWidget* parent)
    : QFrame(parent),
      subject_(subject),
      title_(new QLabel(this)),
      findings_(new QLabel),
      scroll_(new QScrollArea(this)) {
  findings_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::LinksAccessibleByMouse |
                                     Qt::LinksAccessibleByKeyboard);
  connect(findings_, &QLabel::linkActivated, this, &DiagnosticsPanel::FindingChosen);
  ReachByTab(findings_);
  findings_->setAccessibleName(QStringLiteral("Diagnostics of %1").arg(subject.toLower()));
  findings_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  findings_->setFont(theme::MonospaceFont());
  findings_->setWordWrap(true);
  scroll_->setWidget(findings_);
  scroll_->setWidgetResizable(true);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // it would cover the only line
  scroll_->setFrameShape(QFrame::NoFrame);
  ReachByTab(scroll_);
  scroll_->setAccessibleName(QStringLiteral("List of diagnostics"));
  title_->setWordWrap(true);  // or it would request the width of its sentence
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(12, 8, 12, 8);
  layout->addWidget(title_);
  layout->addWidget(scroll_);
  theme::Follow(this, [this] { Render(); });
  hide();
}

void DiagnosticsPanel::Show(const KeymapSource& source, const Findings& findings) {
  shown_ = findings;
  has_errors_ = source.LastRead().HasErrors();
  keeps_earlier_ = source.KeepsEarlierState();
  Render();
  Arrange();
}

void DiagnosticsPanel::Render() {
  QString rows;
  for (int i = 0; i < shown_.all.size(); ++i) {
    rows += FindingHtml(shown_.all[i], FindPlaced(shown_.placed, i));
  }
  findings_->setText(QStringLiteral("<table cellspacing=0>") + rows + QStringLiteral("</table>"));
  const bool has_findings = !shown_.all.isEmpty();
  const QColor& color = has_errors_    ? theme::Colors().error
                        : has_findings ? theme::Colors().warning
                                       : theme::Colors().faint_text;
  const QString text = has_findings ? StateText(has_errors_, keeps_earlier_) : QStringLiteral("%1 has no mistakes.");
  title_->setText(QStringLiteral("<b style='color:%1'>%2</b>").arg(color.name(), text.arg(subject_)));
}

void DiagnosticsPanel::KeepHeight(int height) {
  kept_height_ = height;
  Arrange();
}

// A narrower panel breaks its diagnostics into more lines.
void DiagnosticsPanel::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  if (event->size().width() != event->oldSize().width()) Arrange();
}

int DiagnosticsPanel::HeightOfFindings() const {
  const QMargins around = layout()->contentsMargins();
  findings_->setMinimumHeight(0);  // part of its size hint
  return qMax(0, findings_->heightForWidth(width() - around.left() - around.right()));
}

void DiagnosticsPanel::Arrange() {
  const bool is_own = kept_height_ == kOwnHeight;
  const int height = HeightOfFindings();
  findings_->setMinimumSize(1, height);  // the layout's default is that of the narrowest width
  scroll_->setMinimumHeight(is_own ? qMin(height, kMostHeight) : 0);
  scroll_->setMaximumHeight(is_own ? scroll_->minimumHeight() : QWIDGETSIZE_MAX);
  setMinimumHeight(is_own ? 0 : kept_height_);
  setMaximumHeight(is_own ? QWIDGETSIZE_MAX : kept_height_);
  setVisible(is_own ? !shown_.all.isEmpty() : kept_height_ > 0);
}

}  // namespace tavi
