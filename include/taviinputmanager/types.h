// Plain types shared by the host and the library.
#ifndef TAVIINPUTMANAGER_TYPES_H_
#define TAVIINPUTMANAGER_TYPES_H_

#include <QSize>
#include <QString>
#include <QVector>

// The header of a record file, as GetRecordInfo reads it.
struct RecordInfo {
  QString package_name;            // the package passed to StopRecord
  QSize resolution{0, 0};          // guest display in pixels when the record was saved; 0 x 0 if the file has none
  qint64 create_time = 0;          // milliseconds since the Unix epoch
  quint64 total_running_time = 0;  // milliseconds at normal speed
};

// One part of a merged record, and how it is played.
struct MergeParam {
  QString file_name;             // the record file of this part
  int repeat_times = 1;          // how many times the part is played; values below 1 mean once
  int repeat_delay = 0;          // pause between repeats in milliseconds at normal speed; values below 1 mean none
  double speed_ratio = 1.0;      // above 1 is faster
  int till_next_item_delay = 0;  // pause before the next part in milliseconds, at this part's speed
};

namespace taviinputmanager {

// What the mouse currently does. See OnInputStatusChanged.
enum class InputStatus : int {
  Normal = 0,      // the keymap has no Staring item
  Staring = 1,     // relative mouse counts turn the view
  StaringOff = 2,  // the keymap has a Staring item, which is off: the cursor is free
  Observing = 3,   // an Observe key is held while Staring is off
};

// What the recorder currently does.
enum class RecordStatus : int {
  Stopped = 0,    // nothing is recorded
  Recording = 1,  // lines to primary displays and text lines are recorded
  Paused = 2,     // a recording is paused
};

// How a replay is played.
struct ReplayParam {
  double speed_ratio = 1.0;     // 1 is normal speed, above 1 is faster
  bool emulation_mode = false;  // positions vary a little, like those of a human hand
};

// Sends event lines. `data` holds `length` bytes of UTF-8 including the final newline, followed by a NUL that `length`
// does not count. It is the library's and valid during the call only. Called on the main thread, except when a replay
// reaches the end of its record.
using InputEventSendFunc = void (*)(const char* data, int length);
// Sends text lines. The same, except that a NUL, which `length` counts, replaces the newline.
using InputTextSendFunc = void (*)(const char* data, int length);

// Mirrors event lines. `command` is the line with its newline and without the display prefix; `targets` are the names
// passed to StartSync, in that order. Threads as above.
using InputEventSyncFunc = void (*)(const QString& command, const QVector<QString>& targets);
// Mirrors text lines; the same.
using InputTextSyncFunc = void (*)(const QString& command, const QVector<QString>& targets);

}  // namespace taviinputmanager

#endif  // TAVIINPUTMANAGER_TYPES_H_
