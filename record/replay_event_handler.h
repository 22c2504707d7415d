// Performs the actions of a record.
#ifndef RECORD_REPLAY_EVENT_HANDLER_H_
#define RECORD_REPLAY_EVENT_HANDLER_H_

#include <QMap>
#include <QPointF>
#include <QString>

#include "core/code_set.h"
#include "core/event_handler.h"

namespace taviinputmanager {

// Lines are made anew, with the display of the moment and with fingers of the macro pool, and go to the replay display.
// What cannot be read is dropped in silence. Remembers what is held down, so that a replay that was paused can press it
// again. One for all replays: equal slots of two records are one finger.
//
// Threads: main thread.
class ReplayEventHandler : public EventHandler {
  Q_OBJECT

 public:
  static ReplayEventHandler* GetInstance();

  // The arguments of an action, by its type.
  void OnMouseAction(const QString& data, const QString& extra1, const QString& extra2);
  void OnKeyboardAction(const QString& data, const QString& extra1, const QString& extra2);
  // `emulation_mode`: single presses are moved by up to 2 display pixels, as a hand would.
  void OnTouchAction(const QString& data, const QString& extra1, const QString& extra2, bool emulation_mode);
  void OnInputMethodAction(const QString& data, const QString& extra1, const QString& extra2);
  void OnJoystickAction(const QString& data, const QString& extra1, const QString& extra2);

  // Forgets everything and sends nothing. Slots that are held stay taken in the pool until that one is reset.
  void Reset();
  // Presses again what is held down.
  void ResumeHeldInput();

 private:
  ReplayEventHandler() = default;

  void Press(const QString& data, const QString& slot_text, bool emulation_mode);
  void Release(const QString& slot_text);
  void MultiPress(const QString& data, const QString& slot_texts);
  void MultiRelease(const QString& slot_texts);

  void SendToReplay(const QString& command);
  // A slot of a record to the one that plays it, which is taken from the pool; itself when the pool has none.
  int MapSlot(int id);
  void UnmapSlot(int original, int id);

  QMap<int, QString> pressed_slots_;        // by slot of the guest: the line that holds it down
  QMap<int, QString> pressed_multi_slots_;  // by slot of the guest: its part of such a line
  CodeSet replayed_keys_;                   // guest key codes
  QMap<int, int> slot_map_;                 // slots of records to slots of the guest
};

}  // namespace taviinputmanager

#endif  // RECORD_REPLAY_EVENT_HANDLER_H_
