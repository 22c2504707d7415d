// Performs the actions of a record.
#ifndef RECORD_REPLAY_EVENT_HANDLER_H_
#define RECORD_REPLAY_EVENT_HANDLER_H_

#include <QMap>
#include <QPointF>
#include <QString>

#include "core/code_set.h"
#include "core/event_handler.h"

namespace taviinputmanager {

// Lines are created for the current display and with slots of the macro pool, and go to the replay display. Data that
// cannot be parsed is dropped silently. Remembers what is held down, so that a paused replay can press it again. All
// replays share one handler: equal slots of two records are one contact.
//
// Threads: main thread.
class ReplayEventHandler : public EventHandler {
  Q_OBJECT

 public:
  static ReplayEventHandler* GetInstance();

  // The arguments of an action, by its type.
  void OnMouseAction(const QString& data, const QString& extra1, const QString& extra2);
  void OnKeyboardAction(const QString& data, const QString& extra1, const QString& extra2);
  // `emulation_mode`: single presses are moved by up to 2 display pixels, like those of a human hand.
  void OnTouchAction(const QString& data, const QString& extra1, const QString& extra2, bool emulation_mode);
  void OnInputMethodAction(const QString& data, const QString& extra1, const QString& extra2);
  void OnJoystickAction(const QString& data, const QString& extra1, const QString& extra2);

  // Clears everything and sends nothing. Held slots stay taken in the pool until the pool is reset.
  void Reset();
  // Presses what is held down again.
  void ResumeHeldInput();

 private:
  ReplayEventHandler() = default;

  void Press(const QString& data, const QString& slot_text, bool emulation_mode);
  void Release(const QString& slot_text);
  void MultiPress(const QString& data, const QString& slot_texts);
  void MultiRelease(const QString& slot_texts);

  void SendToReplay(const QString& command);
  // Maps a slot of a record to the one that plays it, which is taken from the pool; the same slot if the pool has none.
  int MapSlot(int id);
  void UnmapSlot(int original, int id);

  QMap<int, QString> pressed_slots_;        // by slot of the guest: the line that pressed it
  QMap<int, QString> pressed_multi_slots_;  // by slot of the guest: its part of such a line
  CodeSet replayed_keys_;                   // guest key codes
  QMap<int, int> slot_map_;                 // slots of records to slots of the guest
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_EVENT_HANDLER_H_
