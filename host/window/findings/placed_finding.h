// Diagnostics of a keymap, at the points of their items on the guest's screen.
#ifndef HOST_WINDOW_FINDINGS_PLACED_FINDING_H_
#define HOST_WINDOW_FINDINGS_PLACED_FINDING_H_

#include <QPointF>
#include <QString>
#include <QVector>

#include "keymapmanager/keymap_file.h"

namespace tavi {

class KeymapSource;

struct PlacedFinding {
  int index = 0;  // in the file's diagnostics
  QString label;  // a number, the same in the list and on the screen
  bool is_error = false;
  QString message;
  QPointF point;  // fraction of the display
};

// The diagnostics of a keymap in the order of the file, and those of them that have a point.
struct Findings {
  QVector<tavikeymapmanager::Diagnostic> all;
  QVector<PlacedFinding> placed;
};

// The diagnostics that have a point. If an earlier state of the file is in use, the items are those of that state:
// lines before and after the change map to themselves, lines of the change to the lines that it replaced. Labels are
// numbers from 1 after `prefix`.
QVector<PlacedFinding> PlaceFindings(const KeymapSource& source, const QVector<tavikeymapmanager::Diagnostic>& findings,
                                     const QString& prefix);

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_PLACED_FINDING_H_
