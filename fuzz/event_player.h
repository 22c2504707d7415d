// Plays coded input through all exports.
#ifndef FUZZ_EVENT_PLAYER_H_
#define FUZZ_EVENT_PLAYER_H_

#include <QByteArray>
#include <QPointF>
#include <QString>
#include <QVector>

#include "fuzz/event_code.h"
#include "taviinputmanager/taviinputmanager.h"

namespace taviinputmanager::fuzz {

// One for each input, on a session that has begun. It observes the duties of a host that the public header documents.
class EventPlayer {
 public:
  EventPlayer();
  ~EventPlayer();
  EventPlayer(const EventPlayer&) = delete;
  EventPlayer& operator=(const EventPlayer&) = delete;

  void Play(const EventCode& code);
  // The current display.
  int GetDisplay() const { return display_; }

 private:
  void PlayInput(const EventCode& code);
  void PlayKey(QEvent::Type type, const EventCode& code);
  void PlayMouse(QEvent::Type type, const EventCode& code);
  void PlayWheel(const EventCode& code);
  void PlayTouch(QEvent::Type type, const EventCode& code);
  void PlayState(const EventCode& code);
  void LoadKeymap(const EventCode& code);
  void ChangeHost(const EventCode& code);
  void InitializeAgain(const EventCode& code);
  void PlayRecord(const EventCode& code);
  void PlayCapture(const EventCode& code);
  void PlayReplay(const EventCode& code);
  void PlayRecordFile(const EventCode& code);
  void PlaySync(const EventCode& code);
  void PlayRaw(const EventCode& code);

  int display_ = 1;
  Qt::MouseButtons buttons_;
  QString record_;    // a record file of touches, keys and text, for replays
  QString recorded_;  // what this input records
  bool is_replaying_ = false;
  InputManagerCallbacks table_;  // the host's, without the members that are currently null
};

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_EVENT_PLAYER_H_
