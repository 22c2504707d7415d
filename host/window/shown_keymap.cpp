#include "host/window/shown_keymap.h"

#include <QFileInfo>

#include "host/session/keymap_report.h"
#include "host/session/keymap_source.h"
#include "host/session/keymap_watch.h"
#include "host/session/reserved_keys.h"
#include "host/window/findings/diagnostics_panel.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

ShownKeymap::ShownKeymap(const QString& subject, const QString& prefix, QObject* parent)
    : QObject(parent), prefix_(prefix), panel_(new DiagnosticsPanel(subject)), watch_(new KeymapWatch(this)) {
  connect(watch_, &KeymapWatch::Changed, this, &ShownKeymap::FileChanged);
  connect(watch_, &KeymapWatch::Vanished, this, &ShownKeymap::FileVanished);
}

void ShownKeymap::Watch(const QString& path) { watch_->Watch(path); }

void ShownKeymap::Take(const KeymapSource& source, const ReservedKeys& reserved_keys) {
  const tavikeymapmanager::LoadResult& in_use = source.InUse();
  path_ = source.Path();
  item_count_ = ItemCountText(in_use);
  marks_ = MarksOf(in_use);
  Findings findings;
  findings.all = source.LastRead().diagnostics;
  if (!source.LastRead().HasErrors()) findings.all += reserved_keys.FindingsIn(in_use);
  findings.placed = PlaceFindings(source, findings.all, prefix_);
  findings_ = findings.placed;
  panel_->Show(source, findings);
}

QString ShownKeymap::FileName() const { return QFileInfo(path_).fileName(); }

QString ShownKeymap::Contents() const {
  const QString name = path_.isEmpty() ? QStringLiteral("New keymap") : FileName();
  const QString contents = QStringLiteral("%1 \u00B7 %2").arg(name, item_count_);
  const bool is_gone = !path_.isEmpty() && !watch_->IsThere();
  return is_gone ? contents + QStringLiteral(" \u00B7 the file was deleted") : contents;
}

}  // namespace tavi
