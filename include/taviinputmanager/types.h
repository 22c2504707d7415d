// The plain types that host and library exchange.
#ifndef TAVIINPUTMANAGER_TYPES_H_
#define TAVIINPUTMANAGER_TYPES_H_

#include <QSize>
#include <QString>
#include <QVector>

// The header of a record file, as GetRecordInfo reads it.
struct RecordInfo {
  QString package_name;            // the package that was handed to StopRecord
  QSize resolution{0, 0};          // guest display in pixels at the time of saving; 0 x 0 when the file names none
  qint64 create_time = 0;          // milliseconds since the Unix epoch
  quint64 total_running_time = 0;  // milliseconds at normal speed
};

// How one part of a merged record is played.
struct MergeParam {
  QString file_name;             // the record file that this part is read from
  int repeat_times = 1;          // how often the part is played; 0, 1 and negative values all play it once
  int repeat_delay = 0;          // pause between two repeats in milliseconds at normal speed; below 1 there is none
  double speed_ratio = 1.0;      // above 1 is faster
  int till_next_item_delay = 0;  // pause before the next part in milliseconds, at this part's speed
};

namespace taviinputmanager {

// What the mouse does at present. See OnInputStatusChanged.
enum class InputStatus : int {
  Normal = 0,      // the keymap has no Staring item
  Staring = 1,     // relative mouse counts steer the view
  StaringOff = 2,  // the keymap has a Staring item and it is off: the cursor is free
  Observing = 3,   // an Observe key is held while staring was off
};

// What the recorder does at present.
enum class RecordStatus : int {
  Stopped = 0,    // nothing is recorded
  Recording = 1,  // lines to primary displays and texts are recorded
  Paused = 2,     // a recording rests
};

// How a replay is played.
struct ReplayParam {
  double speed_ratio = 1.0;     // 1 is normal speed, above 1 is faster
  bool emulation_mode = false;  // positions are disturbed a little, as a hand would
};

// The host's function for event lines. `data` holds `length` bytes of UTF-8, the newline at the end among them, and a
// NUL behind them; it is the library's and valid during the call only. Main thread, but at the natural end of a replay.
using InputEventSendFunc = void (*)(const char* data, int length);
// The host's function for text lines. The same, with a NUL in place of the newline, which `length` counts.
using InputTextSendFunc = void (*)(const char* data, int length);

// The host's function for event lines to mirror. `command` is the bare line with its newline and without display
// prefix, `targets` are the names given to StartSync, in that order. Threads as above.
using InputEventSyncFunc = void (*)(const QString& command, const QVector<QString>& targets);
// The host's function for text lines to mirror; the same.
using InputTextSyncFunc = void (*)(const QString& command, const QVector<QString>& targets);

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_TYPES_H_
