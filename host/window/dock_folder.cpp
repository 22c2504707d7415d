#include "host/window/dock_folder.h"

#include <algorithm>

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>

namespace tavi {

namespace {

constexpr int kBarsHeight = 170;  // tool bars, the strip below the view, the status bar

}  // namespace

DockFolder::DockFolder(QMainWindow* window) : QObject(window), window_(window) { window->installEventFilter(this); }

void DockFolder::Add(QDockWidget* dock) { entries_.push_back({dock}); }

bool DockFolder::IsWanted(const QDockWidget* dock) const {
  return !dock->isHidden() || std::any_of(entries_.begin(), entries_.end(),
                                          [dock](const Entry& entry) { return entry.dock == dock && entry.is_folded; });
}

void DockFolder::SetWanted(QDockWidget* dock, bool wanted) {
  for (Entry& entry : entries_) {
    if (entry.dock != dock) continue;
    entry.is_crowded = IsCrowded(dock);
    entry.is_folded = wanted && entry.is_crowded;
    dock->setVisible(wanted && !entry.is_crowded);
  }
}

bool DockFolder::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::Resize) return false;
  for (Entry& entry : entries_) Fold(&entry);
  FoldStrip();
  return false;
}

void DockFolder::SetStrip(QWidget* strip) {
  strip_ = strip;
  FoldStrip();
}

void DockFolder::FoldStrip() {
  if (strip_ != nullptr) strip_->setVisible(window_->height() >= kLeastViewHeight + kBarsHeight);
}

void DockFolder::Fold(Entry* entry) {
  const bool was_crowded = entry->is_crowded;
  entry->is_crowded = IsCrowded(entry->dock);
  if (entry->is_crowded == was_crowded) return;
  if (entry->is_crowded && !entry->dock->isHidden()) {
    entry->is_folded = true;
    entry->dock->hide();
  } else if (!entry->is_crowded && entry->is_folded) {
    entry->is_folded = false;
    entry->dock->show();
  }
}

// Depends only on the size of the window, because the size of the view changes with the docks.
bool DockFolder::IsCrowded(const QDockWidget* dock) const {
  const QSize least = dock->minimumSizeHint();
  const Qt::DockWidgetArea area = window_->dockWidgetArea(const_cast<QDockWidget*>(dock));
  if (area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea) {
    return window_->width() < least.width() + kLeastViewWidth;
  }
  return window_->height() < least.height() + kLeastViewHeight + kBarsHeight;
}

}  // namespace tavi
