#include "host/window/events/event_log.h"

#include "host/look/theme.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/mapping.h"
#include "keymapmanager/key_names.h"

namespace tavi {

using Kind = HostEvent::Kind;
using Source = TimelineEntry::Source;

namespace {

constexpr int kMostLines = 12;  // per event

const char* const kTitles[] = {"Time", "Event", "Code", "Key", "Matched", "Sent"};

}  // namespace

EventLog::EventLog(const Mapping* mapping, QObject* parent) : QAbstractTableModel(parent), mapping_(mapping) {
  connect(mapping, &Mapping::Changed, this, &EventLog::TakeKeymaps);
  connect(InputPort::GetInstance(), &InputPort::Began, this, &EventLog::Begin);
  connect(InputPort::GetInstance(), &InputPort::Ended, this, &EventLog::End);
  connect(LiveHost::GetInstance(), &LiveHost::EntryAdded, this, &EventLog::TakeEntry);
  TakeKeymaps();
}

int EventLog::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int EventLog::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumnCount; }

QVariant EventLog::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return QString::fromLatin1(kTitles[section]);
}

QVariant EventLog::data(const QModelIndex& index, int role) const {
  const Row& row = rows_[static_cast<size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      if (index.column() == kTime)
        return Text(row, kTime) + QLatin1Char(' ');  // or a long one would run into the event
      return Text(row, index.column());
    case Qt::ToolTipRole: return index.column() == kSent ? row.lines.join(QLatin1Char('\n')) : QString();
    case Qt::TextAlignmentRole:
      return static_cast<int>((index.column() == kTime ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      if (index.column() == kTime || index.column() == kCode) return theme::Colors().faint_text;
      if (index.column() == kSent) return theme::Colors().tap;
      return row.event.kind == Kind::kRelease ? theme::Colors().faint_text : theme::Colors().text;
    default: return {};
  }
}

QString EventLog::Text(const Row& row, int column) const {
  switch (column) {
    case kTime: return QStringLiteral("%1ms").arg(row.ms);
    case kEvent: return row.event.text + (row.count > 1 ? QStringLiteral(" \u00D7%1").arg(row.count) : QString());
    case kCode: return row.event.code;
    case kKey:
      return tavikeymapmanager::IsKeySet(row.event.key) ? tavikeymapmanager::NameOfKey(row.event.key) : QString();
    case kMatch: return row.match;
    default: break;
  }
  QStringList parts = row.lines;
  if (row.further_lines > 0) parts += QStringLiteral("and %1 more").arg(row.further_lines);
  if (row.later_lines > 0) parts += QStringLiteral("+%1 later").arg(row.later_lines);
  return parts.join(QStringLiteral("  "));
}

void EventLog::TakeKeymaps() {
  const bool is_on = !mapping_->IsPaused();
  matcher_.SetKeymaps(is_on ? &mapping_->Keymap().InUse() : nullptr,
                      is_on ? &mapping_->JoystickKeymap().InUse() : nullptr);
}

void EventLog::Begin(const HostEvent& event) {
  is_inside_ = true;
  is_counting_later_ = false;
  current_ = Row();
  current_.ms = LiveHost::GetInstance()->ElapsedMs();
  current_.event = event;
  current_.match = MatchText(event);
}

// Empty if only the sent lines can show what it matched.
QString EventLog::MatchText(const HostEvent& event) {
  const bool is_key = !event.key.device.isEmpty() && event.key.device == tavikeymapmanager::keywords::kDeviceKeyboard;
  const QString match = matcher_.Match(event);
  if (event.kind == Kind::kLetGo) return QStringLiteral("the window");
  if (mapping_->IsPaused()) return QStringLiteral("mapping off");
  if (is_key && LiveHost::GetInstance()->HasTextField()) return QStringLiteral("text field");
  if (event.kind == Kind::kMove && event.key.device.isEmpty()) return {};
  if (event.kind == Kind::kMove) return QStringLiteral("view control");
  return match;
}

void EventLog::TakeEntry(const TimelineEntry& entry) {
  if (entry.source == Source::kCallback) return;
  if (is_inside_) {
    if (current_.lines.size() < kMostLines) {
      current_.lines += entry.text;
    } else {
      ++current_.further_lines;
    }
  } else if (is_counting_later_ && !rows_.empty()) {
    ++rows_.back().later_lines;
    const int last = rowCount() - 1;
    Q_EMIT dataChanged(index(last, kSent), index(last, kSent));
  }
}

void EventLog::End() {
  is_inside_ = false;
  const bool is_event = current_.event.kind != Kind::kLetGo;
  is_counting_later_ = !paused_ && is_event;
  const bool is_news = is_event || (!current_.lines.isEmpty() && !rows_.empty());  // the event had no lines so far
  if (paused_ || !is_news) return;
  if (current_.match.isEmpty()) {
    current_.match = current_.lines.isEmpty() ? QStringLiteral("nothing sent") : QStringLiteral("passes through");
  }
  Append(current_);
}

void EventLog::Append(const Row& row) {
  if (!shows_repeats_ && !rows_.empty() && row.event.IsRepeatOf(rows_.back().event)) {
    const int count = rows_.back().count + 1;
    rows_.back() = row;
    rows_.back().count = count;
    const int last = rowCount() - 1;
    Q_EMIT dataChanged(index(last, 0), index(last, kColumnCount - 1));
    return;
  }
  if (rows_.size() == static_cast<size_t>(kMostRows)) {
    beginRemoveRows({}, 0, 0);
    rows_.pop_front();
    endRemoveRows();
  }
  beginInsertRows({}, rowCount(), rowCount());
  rows_.push_back(row);
  endInsertRows();
}

void EventLog::Clear() {
  beginResetModel();
  rows_.clear();
  endResetModel();
}

QString EventLog::KeymapText(int row) const {
  return row >= 0 && row < rowCount() ? KeymapFields(rows_[static_cast<size_t>(row)].event) : QString();
}

int EventLog::LastForKeymap() const {
  int row = rowCount() - 1;
  while (row >= 0 && KeymapText(row).isEmpty()) --row;
  return row;
}

QString EventLog::RowText(int row) const {
  QStringList columns;
  for (int column = 0; column < kColumnCount; ++column) columns += Text(rows_[static_cast<size_t>(row)], column);
  return columns.join(QLatin1Char('\t'));
}

}  // namespace tavi
