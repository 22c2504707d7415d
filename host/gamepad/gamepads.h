#ifndef HOST_GAMEPAD_GAMEPADS_H_
#define HOST_GAMEPAD_GAMEPADS_H_

#include <map>

#include <QList>
#include <QObject>
#include <QString>

#include "host/gamepad/pad_input.h"

namespace tavi {

// The gamepads that are connected, and what the library was told of each. Whoever reads the devices fills it in:
// GamepadPoll for real ones.
//
// Main thread.
class Gamepads : public QObject {
  Q_OBJECT

 public:
  explicit Gamepads(PadInput::Sink sink, QObject* parent = nullptr);

  // `id` and the names of buttons and axes are those of PadInput; events of gamepads that are not here are left out.
  void Add(int id, const QString& name, PadFamily family);
  // Lets go of all that the gamepad held.
  void Remove(int id);
  void SetButton(int id, const QString& button, bool down);
  void SetAxis(int id, const QString& axis, double value);
  // To be called every kStickMs milliseconds.
  void SendSticks();

  // While the window is not in use, gamepads are not either.
  void SetListening(bool listening);
  void ReleaseAll();

  QList<int> Ids() const;
  int Count() const { return static_cast<int>(pads_.size()); }
  // The gamepad that was used last, or that came last; null without any. Valid until the next change.
  const PadInput* LastUsed() const;
  QString LastUsedName() const;

  // A view turned by a right stick moves by a step each time.
  static constexpr int kStickMs = 16;

 Q_SIGNALS:
  // A gamepad came or went, or is used.
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
