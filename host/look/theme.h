// The colours of the window, in one place: a dark set and a light one.
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

// Every text colour can be read on every ground, and `on_lit` on every lit colour: at least 4.5 to 1.
struct ColorSet {
  // Grounds.
  QColor backdrop;    // around the guest view
  QColor guest;       // its middle
  QColor guest_edge;  // its corners
  QColor panel;
  QColor panel_line;
  QColor button;
  QColor base;   // of lists and fields
  QColor plate;  // of keys over the guest, which lets little through

  // Texts.
  QColor text;
  QColor faint_text;
  QColor label;  // of items over the guest: fainter than key names, and legible on a picture
  QColor tap;
  QColor walk;
  QColor view;
  QColor cast;
  QColor macro;
  QColor error;
  QColor warning;

  QColor on_lit;     // text where one of the colours above is the ground
  QColor switch_on;  // ground of a switch that is on, with `text` on it
  QColor selection;  // ground, with `selected_text` on it
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
// The set in use; dark until Apply says otherwise.
const ColorSet& Colors();

enum class Look { kDesktop, kLight, kDark };

// "desktop", "light", "dark"
QString NameOf(Look look);
// False for a name that is none of these.
bool ParseLook(const QString& name, Look* look);

// Gives all widgets these colours; those of the desktop are as light as its palette was at the program's start.
void Apply(QApplication* application, Look look);
Look CurrentLook();

// Calls `take` now and whenever other colours come, for as long as `owner` lives: for what keeps a colour.
void Follow(QObject* owner, const std::function<void()>& take);

// The colour of a finger by its slot, so that one finger keeps its colour.
QColor SlotColor(int slot);

QFont MonospaceFont();

}  // namespace tavi::theme

#endif  // HOST_LOOK_THEME_H_
