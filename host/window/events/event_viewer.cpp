#include "host/window/events/event_viewer.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/look/theme.h"
#include "host/window/controls/control_focus.h"
#include "host/window/events/end_follower.h"
#include "host/window/events/event_log.h"

namespace tavi {

namespace {

constexpr int kRowHeight = 19;
constexpr int kLeastHeight = 150;
// In characters; the sent lines get the rest.
constexpr int kWidths[EventLog::kColumnCount - 1] = {10, 25, 12, 17, 26};

QToolButton* AddButton(QHBoxLayout* row, const QString& text, const QString& hint) {
  auto* button = new QToolButton;
  button->setText(text);
  button->setToolTip(hint);
  ReachByTab(button);
  row->addWidget(button);
  return button;
}

QTableView* MakeTable(EventLog* log) {
  auto* table = new QTableView;
  table->setModel(log);
  ReachByTab(table);
  table->setTabKeyNavigation(false);
  table->setAccessibleName(QStringLiteral("Events of the host"));
  table->horizontalHeader()->setAccessibleName(QStringLiteral("Columns of the events"));
  table->verticalHeader()->setAccessibleName(QStringLiteral("Rows of the events"));
  table->setFrameShape(QFrame::NoFrame);
  table->setShowGrid(false);
  table->setFont(theme::MonospaceFont());
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table->setWordWrap(false);
  table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  table->verticalHeader()->hide();
  table->verticalHeader()->setMinimumSectionSize(kRowHeight);
  table->verticalHeader()->setDefaultSectionSize(kRowHeight);
  table->horizontalHeader()->setHighlightSections(false);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  table->horizontalHeader()->setStretchLastSection(true);
  return table;
}

}  // namespace

EventViewer::EventViewer(EventLog* log, QWidget* parent) : QWidget(parent), log_(log), table_(MakeTable(log)) {
  log->setParent(this);
  auto* buttons = new QHBoxLayout;
  buttons->setContentsMargins(6, 4, 6, 4);
  QToolButton* pause = AddButton(buttons, QStringLiteral("Pause"), QStringLiteral("Leave out events from now on"));
  QToolButton* every = AddButton(buttons, QStringLiteral("Every move"),
                                 QStringLiteral("A row for each movement and each key repeat, instead of one for all"));
  QToolButton* copy_key = AddButton(
      buttons, QStringLiteral("Copy for keymap"),
      QStringLiteral("Copy key and point of the selected rows, or of the last one, in the format of a keymap"));
  QToolButton* copy = AddButton(buttons, QStringLiteral("Copy all"), QStringLiteral("Copy the whole list"));
  QToolButton* clear = AddButton(buttons, QStringLiteral("Clear"), QStringLiteral("Empty the list"));
  buttons->addStretch();
  for (QToolButton* button : {pause, every}) button->setCheckable(true);
  connect(pause, &QToolButton::toggled, log, &EventLog::SetPaused);
  connect(every, &QToolButton::toggled, log, &EventLog::SetShowsRepeats);
  connect(copy_key, &QToolButton::clicked, this, [this] { QApplication::clipboard()->setText(TextForKeymap()); });
  connect(copy, &QToolButton::clicked, this, [this] { QApplication::clipboard()->setText(Text()); });
  connect(clear, &QToolButton::clicked, log, &EventLog::Clear);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addLayout(buttons);
  layout->addWidget(table_);
  table_->setMinimumHeight(kLeastHeight);
  SizeColumns();
  new EndFollower(table_->verticalScrollBar());
}

void EventViewer::SizeColumns() {
  const int character = table_->fontMetrics().averageCharWidth();
  for (int column = 0; column < EventLog::kColumnCount - 1; ++column) {
    table_->setColumnWidth(column, kWidths[column] * character + character);
  }
}

QString EventViewer::TextForKeymap() const {
  QStringList texts;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
    const QString text = log_->KeymapText(index.row());
    if (!text.isEmpty()) texts += text;
  }
  if (texts.isEmpty()) return log_->KeymapText(log_->LastForKeymap());
  return texts.join(QLatin1Char('\n'));
}

QString EventViewer::Text() const {
  QStringList rows;
  for (int row = 0; row < log_->rowCount(); ++row) rows += log_->RowText(row);
  return rows.join(QLatin1Char('\n'));
}

}  // namespace tavi
