// Stories of the virtual gamepad's parts, as signals.
#ifndef TESTS_SIMULATORS_GAMEPAD_PAD_STORY_H_
#define TESTS_SIMULATORS_GAMEPAD_PAD_STORY_H_

#include "host/simulation/virtual_event_dispatcher.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace taviinputmanager {

// Only the story is connected to the parts. Its time starts at 0 with the last load.
class PadStory : public Story {
 protected:
  // The signals since the last call: "25ms press A".
  std::string Said() { return std::exchange(said_, {}).join(", ").toStdString(); }
  void Say(const QString& what) { said_.append(QStringLiteral("%1ms %2").arg(Time().NowMs() - start_ms_).arg(what)); }
  void LoadPad() {
    Load();
    start_ms_ = Time().NowMs();
    said_.clear();
  }

  template <typename Simulator>
  void ListenToButton(Simulator* simulator) {
    QObject::connect(simulator, &Simulator::sigVJoystickButtonPressOrRelease,
                     [this](QString& text, bool press) { Say((press ? "press " : "release ") + text); });
  }

 private:
  QStringList said_;
  qint64 start_ms_ = 0;
};

}  // namespace taviinputmanager

#endif  // TESTS_SIMULATORS_GAMEPAD_PAD_STORY_H_
