// The description of a keymap file for the user.
#ifndef HOST_SESSION_KEYMAP_REPORT_H_
#define HOST_SESSION_KEYMAP_REPORT_H_

#include <QString>

namespace tavikeymapmanager {
struct LoadResult;
}

namespace tavi {

// All diagnostics, one per line.
QString FormatDiagnostics(const tavikeymapmanager::LoadResult& result);

// "no items", "1 item", "12 items"
QString ItemCountText(const tavikeymapmanager::LoadResult& result);

}  // namespace tavi

#endif  // HOST_SESSION_KEYMAP_REPORT_H_
