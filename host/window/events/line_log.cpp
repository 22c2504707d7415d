#include "host/window/events/line_log.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextCharFormat>
#include <QTimerEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/guest/guest_line.h"
#include "host/look/theme.h"
#include "host/window/controls/control_focus.h"
#include "host/window/events/end_follower.h"

namespace tavi {

using Kind = GuestLine::Kind;
using Source = TimelineEntry::Source;

namespace {

constexpr int kMostLines = 5000;
constexpr int kFlushMs = 40;
constexpr int kTimeWidth = 9;      // characters
constexpr int kLeastColumns = 44;  // a contact's press with its time

QColor ColorOfKind(Kind kind) {
  switch (kind) {
    case Kind::kUnknown: return theme::Colors().error;
    case Kind::kSlotPress:
    case Kind::kMultiPress: return theme::Colors().tap;
    case Kind::kSlotRelease:
    case Kind::kSlotReleaseAll:
    case Kind::kMultiRelease: return theme::Colors().faint_text;
    case Kind::kKeyPress: return theme::Colors().walk;
    case Kind::kKeyRelease: return theme::Colors().faint_text;
    case Kind::kText:
    case Kind::kTextControl: return theme::Colors().cast;
    case Kind::kMouseMove:
    case Kind::kWheel:
    case Kind::kWheelWithDelta: return theme::Colors().view;
    default: return theme::Colors().macro;
  }
}

QColor ColorOf(const TimelineEntry& entry) {
  if (entry.source == Source::kCallback) return theme::Colors().faint_text;
  const QString line = entry.source == Source::kLine ? SplitDisplay(entry.text).line : entry.text;
  return ColorOfKind(ParseGuestLine(line).kind);
}

// The time has a column of its own; the rest is as in the output of `tavi simulate`.
QString TimeText(const TimelineEntry& entry) {
  return QStringLiteral("%1ms ").arg(entry.ms).rightJustified(kTimeWidth);
}

QString EntryText(const TimelineEntry& entry) {
  const QString text = FormatEntry(entry);
  return text.mid(text.indexOf(QLatin1Char(' ')) + 1).replace(QLatin1Char('\n'), QChar(0x21B5));
}

void AppendEntry(QTextCursor* cursor, const TimelineEntry& entry) {
  QTextCharFormat format;
  format.setForeground(theme::Colors().faint_text);
  cursor->insertText(TimeText(entry), format);
  format.setForeground(ColorOf(entry));
  cursor->insertText(EntryText(entry), format);
}

QPlainTextEdit* MakeText(QWidget* parent) {
  auto* text = new QPlainTextEdit(parent);
  text->setReadOnly(true);
  text->setMaximumBlockCount(kMostLines);
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setFont(theme::MonospaceFont());
  text->setFrameShape(QFrame::NoFrame);
  // The user can select text with the mouse without moving the focus from the guest.
  ReachByTab(text);
  text->setAccessibleName(QStringLiteral("Lines for the guest"));
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kLeastColumns);
  return text;
}

QToolButton* MakeButton(const QString& text, const QString& hint, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setText(text);
  button->setToolTip(hint);
  ReachByTab(button);
  return button;
}

}  // namespace

LineLog::LineLog(QWidget* parent)
    : QWidget(parent), text_(MakeText(this)), end_(new EndFollower(text_->verticalScrollBar())) {
  auto* calls = MakeButton(QStringLiteral("Calls"), QStringLiteral("Also list the callbacks of the host"), this);
  calls->setCheckable(true);
  connect(calls, &QToolButton::toggled, this, [this](bool shown) { calls_shown_ = shown; });
  auto* pause = MakeButton(QStringLiteral("Pause"), QStringLiteral("Leave out lines from now on"), this);
  pause->setCheckable(true);
  connect(pause, &QToolButton::toggled, this, [this](bool paused) { paused_ = paused; });
  auto* copy = MakeButton(QStringLiteral("Copy"),
                          QStringLiteral("Copy the whole list as a timeline that tavi guest-uinput plays"), this);
  connect(copy, &QToolButton::clicked, this, [this] { QApplication::clipboard()->setText(Timeline()); });
  auto* clear = MakeButton(QStringLiteral("Clear"), QStringLiteral("Empty the list"), this);
  connect(clear, &QToolButton::clicked, this, &LineLog::Clear);

  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(6, 4, 6, 4);
  for (QToolButton* button : {calls, pause, copy, clear}) buttons->addWidget(button);
  buttons->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(buttons);
  layout->addWidget(text_);
  theme::Follow(this, [this] {
    text_->clear();
    Append({shown_.begin(), shown_.end()});
  });
}

void LineLog::Add(const TimelineEntry& entry) {
  if (paused_ || (entry.source == Source::kCallback && !calls_shown_)) return;
  waiting_.append(entry);
  if (!flushing_.isActive()) flushing_.start(kFlushMs, this);
}

void LineLog::Clear() {
  waiting_.clear();
  shown_.clear();
  text_->clear();
}

QString LineLog::Text() const { return text_->toPlainText(); }

void LineLog::timerEvent(QTimerEvent* event) {
  if (event->timerId() != flushing_.timerId()) return QWidget::timerEvent(event);
  flushing_.stop();
  Flush();
}

void LineLog::Flush() {
  const bool follows = end_->IsFollowing();
  Append(waiting_);
  shown_.insert(shown_.end(), waiting_.begin(), waiting_.end());
  while (shown_.size() > static_cast<size_t>(kMostLines)) shown_.pop_front();
  waiting_.clear();
  if (follows) end_->GoToEnd();
}

void LineLog::Append(const QVector<TimelineEntry>& entries) {
  QTextCursor cursor(text_->document());
  cursor.movePosition(QTextCursor::End);
  cursor.beginEditBlock();
  for (const TimelineEntry& entry : entries) {
    if (!cursor.atStart()) cursor.insertBlock();
    AppendEntry(&cursor, entry);
  }
  cursor.endEditBlock();
}

QString LineLog::Timeline() const {
  QString timeline;
  for (const TimelineEntry& entry : shown_) timeline += FormatLine(entry);
  return timeline;
}

}  // namespace tavi
