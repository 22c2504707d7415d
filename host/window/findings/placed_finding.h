// Findings about a keymap, at the places on the guest's screen of the items that they are about.
#ifndef HOST_WINDOW_FINDINGS_PLACED_FINDING_H_
#define HOST_WINDOW_FINDINGS_PLACED_FINDING_H_

#include <QPointF>
#include <QString>
#include <QVector>

#include "keymapmanager/keymap_file.h"

namespace tavi {

class KeymapSource;

struct PlacedFinding {
  int index = 0;  // among the file's diagnostics
  QString label;  // a number, the same in the list and on the screen
  bool is_error = false;
  QString message;
  QPointF point;  // fractions of the display
};

// What there is to tell about a keymap, in the order of the file, and those of it that have a place.
struct Findings {
  QVector<tavikeymapmanager::Diagnostic> all;
  QVector<PlacedFinding> placed;
};

// Those of the findings that have a place. Where an earlier state of the file is in use the items are those of
// that state: lines before and behind what was changed stand for themselves, and those in between for what stood there.
// Labels are numbers from 1 with `prefix` in front.
QVector<PlacedFinding> PlaceFindings(const KeymapSource& source, const QVector<tavikeymapmanager::Diagnostic>& findings,
                                     const QString& prefix);

}  // namespace tavi

#endif  // HOST_WINDOW_FINDINGS_PLACED_FINDING_H_
