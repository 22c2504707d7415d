// Scripts of input: one notation for simulations, examples, tests and bug reports.
//
// One command per line, or several separated by semicolons; `#` starts a comment. docs/scripts.md documents each
// command.
#ifndef HOST_SIMULATION_SCRIPT_H_
#define HOST_SIMULATION_SCRIPT_H_

#include <QPointF>
#include <QSize>
#include <QString>
#include <QVector>

#include "keymap/config_key.h"

namespace tavi {

struct ScriptTouch {
  int id = 0;
  QPointF point;  // pixels of the guest view
};

struct ScriptCommand {
  enum class Kind {
    kKeyDown,      // key
    kKeyRepeat,    // key
    kKeyUp,        // key
    kWait,         // number, milliseconds
    kMouseDown,    // key, point
    kMouseDouble,  // key, point
    kMouseUp,      // key, point
    kMove,         // point
    kWheel,        // number, eighths of a degree; point
    kRelative,     // point, counts
    kTouchBegin,   // touches
    kTouchUpdate,  // touches
    kTouchEnd,
    kType,        // text
    kCommit,      // text
    kCompose,     // text
    kJoyDown,     // text, the button's name
    kJoyUp,       // text
    kJoyAxis,     // number, the stick; point
    kReset,       // flag: full
    kDisplay,     // number
    kKeymap,      // text, a path
    kJoymap,      // text, a path
    kPackage,     // text, the app of the next keymap to load
    kBack,        // number, the display
    kWindow,      // size, of the guest view in pixels
    kGuest,       // size, of the guest's display
    kTouchpanel,  // size, of the guest's touch surface
    kRotation,    // number, degrees
    kTextField,   // flag: focused
    kEscapeBack,  // flag
    kTransparent  // number, the display; flag
  };

  Kind kind = Kind::kWait;
  int line = 1;  // its line, from 1
  int column = 1;
  tavikeymapmanager::ConfigKey key;
  QString text;
  QPointF point;
  QSize size;
  int number = 0;
  bool flag = false;
  QVector<ScriptTouch> touches;
};

struct ScriptError {
  int line = 1;  // from 1
  int column = 1;
  QString message;
};

struct Script {
  QVector<ScriptCommand> commands;
  QVector<ScriptError> errors;  // all errors, in order; a script with errors must not be played
};

Script ParseScript(const QString& text);

}  // namespace tavi

#endif  // HOST_SIMULATION_SCRIPT_H_
