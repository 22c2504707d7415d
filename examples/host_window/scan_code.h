// The codes of keys. Each window system has its own, so there is a file for each.
#ifndef EXAMPLES_HOST_WINDOW_SCAN_CODE_H_
#define EXAMPLES_HOST_WINDOW_SCAN_CODE_H_

#include <QKeyEvent>

// The key's code on Windows, which the library expects; 0 if it has none.
quint32 WindowsScanCode(const QKeyEvent& event);

#endif  // EXAMPLES_HOST_WINDOW_SCAN_CODE_H_
