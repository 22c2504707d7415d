// The commands for a running player, one per line.
#ifndef HOST_PLAY_CONTROL_WORDS_H_
#define HOST_PLAY_CONTROL_WORDS_H_

#include <QSize>
#include <QString>

namespace tavi {

struct ControlWords {
  enum class Verb {
    kKeymap,    // keymap FILE
    kApp,       // app NAME
    kReset,     // reset
    kRotation,  // rotation N
    kSize,      // size WxH
    kText,      // text on|off
    kPause,     // pause
    kResume,    // resume
    kRecord,    // record FILE
    kReplay,    // replay FILE
    kStop,      // stop
    kState,     // state
    kQuit       // quit
  };

  Verb verb = Verb::kState;
  QString text;      // the file's or app's name
  int rotation = 0;  // degrees
  QSize size;
  bool is_on = false;
  QString problem;  // the error in the line, for display; empty if there is none
};

ControlWords ParseControlWords(const QString& line);

// The same line with an absolute file name: the player may run in another folder.
QString WithAbsoluteFile(const QString& line);

}  // namespace tavi

#endif  // HOST_PLAY_CONTROL_WORDS_H_
