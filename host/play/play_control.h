#ifndef HOST_PLAY_PLAY_CONTROL_H_
#define HOST_PLAY_PLAY_CONTROL_H_

#include <functional>
#include <memory>

#include <QString>

#include "host/play/app_keymaps.h"
#include "host/play/control_socket.h"
#include "host/play/play_records.h"

namespace tavi {

class PlaySession;
struct ControlWords;

// Executes the commands of a script for a player. Main thread.
class PlayControl {
 public:
  // `session` outlives this object. `apps` may be null: then there are no keymaps of apps. `quit` ends the program once
  // the answer is sent.
  PlayControl(PlaySession* session, const AppKeymaps* apps, std::function<void()> quit);

  ControlAnswer Do(const QString& line);

  // Loads the keymap of an app. Returns the error, for display, or an empty string.
  QString UseApp(const QString& app);
  PlayRecords* Records() { return &records_; }

 private:
  QString DoWords(const ControlWords& words);

  PlaySession* const session_;
  const AppKeymaps* const apps_;
  const std::function<void()> quit_;
  PlayRecords records_;
  QString app_;  // as last requested
};

}  // namespace tavi

#endif  // HOST_PLAY_PLAY_CONTROL_H_
