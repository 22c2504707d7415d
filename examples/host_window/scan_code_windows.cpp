#include "scan_code.h"

quint32 WindowsScanCode(const QKeyEvent& event) { return event.nativeScanCode(); }
