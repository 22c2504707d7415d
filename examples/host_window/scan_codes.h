#ifndef SCAN_CODES_H_
#define SCAN_CODES_H_

#include <QtGlobal>

class QKeyEvent;

// The Windows scan code of a key event, with the extended bit as 0x100; 0 for a key that has none.
quint32 WindowsScanCode(const QKeyEvent& event);

#endif  // SCAN_CODES_H_
