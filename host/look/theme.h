// The colours of the window, in one place: a dark theme and a light one.
//
// Main thread.
#ifndef HOST_LOOK_THEME_H_
#define HOST_LOOK_THEME_H_

#include <functional>

#include <QColor>
#include <QString>
#include <QVector>

class QApplication;
class QFont;
class QObject;

namespace tavi::theme {

// Every text colour is legible on every background, and `on_lit` on every lit colour: the contrast is at least 4.5:1.
struct ColorSet {
  // Backgrounds.
  QColor backdrop;    // around the guest view
  QColor guest;       // its middle
  QColor guest_edge;  // its corners
  QColor panel;
  QColor panel_line;
  QColor button;
  QColor base;   // of lists and fields
  QColor plate;  // of keys over the guest, nearly opaque

  // Texts.
  QColor text;
  QColor faint_text;
  QColor label;  // of items over the guest: fainter than key names, but legible on a picture
  QColor tap;
  QColor walk;
  QColor view;
  QColor cast;
  QColor macro;
  QColor error;
  QColor warning;

  QColor on_lit;     // text on one of the colours above
  QColor switch_on;  // background of a checked switch, with `text` on it
  QColor selection;  // background, with `selected_text` on it
  QColor selected_text;
  QColor grid;
  int finger_saturation;  // of SlotColor
  int finger_value;

  QVector<QColor> Grounds() const { return {backdrop, guest, guest_edge, panel, panel_line, button, base, plate}; }
  QVector<QColor> Texts() const { return {text, faint_text, label, tap, walk, view, cast, macro, error, warning}; }
  QVector<QColor> Lit() const { return {tap, walk, view, cast, macro, error, warning}; }
};

const ColorSet& Dark();
const ColorSet& Light();
// The colours in use; dark until Apply is called.
const ColorSet& Colors();

enum class Look { kDesktop, kLight, kDark };

// "desktop", "light", "dark"
QString NameOf(Look look);
// False for any other name.
bool ParseLook(const QString& name, Look* look);

// Applies these colours to all widgets. kDesktop follows the lightness of the desktop's palette at the program's start.
void Apply(QApplication* application, Look look);
Look CurrentLook();

// Calls `take` now and whenever the colours change, as long as `owner` exists: for objects that store a colour.
void Follow(QObject* owner, const std::function<void()>& take);

// The colour of a contact by its slot, so that each contact keeps its colour.
QColor SlotColor(int slot);

QFont MonospaceFont();

}  // namespace tavi::theme

#endif  // HOST_LOOK_THEME_H_
