#ifndef HOST_GAMEPAD_GAMEPADS_H_
#define HOST_GAMEPAD_GAMEPADS_H_

#include <map>

#include <QList>
#include <QObject>
#include <QString>

#include "host/gamepad/pad_input.h"

namespace tavi {

// The connected gamepads, and the values that the library got for each. The code that reads the devices fills it:
// GamepadPoll for real ones.
//
// Main thread.
class Gamepads : public QObject {
  Q_OBJECT

 public:
  explicit Gamepads(PadInput::Sink sink, QObject* parent = nullptr);

  // `id` and the names of buttons and axes are those of PadInput; events of unknown gamepads are ignored.
  void Add(int id, const QString& name, PadFamily family);
  // Releases all that the gamepad holds.
  void Remove(int id);
  void SetButton(int id, const QString& button, bool down);
  void SetAxis(int id, const QString& axis, double value);
  // Call it every kStickMs milliseconds.
  void SendSticks();

  // While the window is inactive, gamepads are ignored.
  void SetListening(bool listening);
  void ReleaseAll();

  QList<int> Ids() const;
  int Count() const { return static_cast<int>(pads_.size()); }
  // The gamepad that was last used or, if none was, last connected; null if there is none. Valid until the next change.
  const PadInput* LastUsed() const;
  QString LastUsedName() const;

  // The interval at which the right stick turns the view by a step.
  static constexpr int kStickMs = 16;

 Q_SIGNALS:
  // A gamepad was connected, disconnected or used.
  void Changed();

 private:
  struct Pad {
    QString name;
    PadInput input;
  };

  Pad* Find(int id);
  void Touch(int id);

  const PadInput::Sink sink_;
  std::map<int, Pad> pads_;  // by id
  int last_used_ = -1;
  bool listening_ = true;
};

}  // namespace tavi

#endif  // HOST_GAMEPAD_GAMEPADS_H_
