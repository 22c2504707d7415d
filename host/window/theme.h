// The colours of the window, in one place.
#ifndef HOST_WINDOW_THEME_H_
#define HOST_WINDOW_THEME_H_

#include <QColor>

class QApplication;
class QFont;

namespace tavi::theme {

inline const QColor kBackdrop(0x0D, 0x0F, 0x14);   // around the guest view
inline const QColor kGuest(0x17, 0x1B, 0x24);      // its middle
inline const QColor kGuestEdge(0x10, 0x13, 0x1A);  // its corners
inline const QColor kGrid(0xFF, 0xFF, 0xFF, 0x0C);
inline const QColor kPanel(0x1B, 0x1F, 0x29);
inline const QColor kPanelLine(0x2C, 0x32, 0x40);
inline const QColor kText(0xE6, 0xEA, 0xF2);
inline const QColor kFaintText(0x96, 0xA0, 0xB4);

inline const QColor kTap(0x5B, 0xC8, 0xD8);
inline const QColor kWalk(0x8B, 0xD4, 0x7A);
inline const QColor kView(0xF2, 0xC1, 0x5B);
inline const QColor kCast(0xB9, 0x9B, 0xFF);
inline const QColor kMacro(0xF0, 0x8C, 0xB8);
inline const QColor kError(0xFF, 0x7B, 0x72);
inline const QColor kWarning(0xF2, 0xC1, 0x5B);

// The colour of a finger by its slot, so that one finger keeps its colour.
QColor SlotColor(int slot);

QFont MonospaceFont();

// Dark widgets throughout.
void Apply(QApplication* application);

}  // namespace tavi::theme

#endif  // HOST_WINDOW_THEME_H_
