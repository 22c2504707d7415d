#ifndef HOST_PLAY_APP_KEYMAPS_H_
#define HOST_PLAY_APP_KEYMAPS_H_

#include <QString>
#include <QStringList>

namespace tavi {

// A folder with a keymap for each app, identified by the keymap's `package`. For each folder, the app that was played
// last is remembered.
//
// Main thread.
class AppKeymaps {
 public:
  // `memory` is the file that remembers the app; empty: it is not remembered.
  AppKeymaps(const QString& folder, const QString& memory);

  // ~/.config/tavi/play.ini.
  static QString UsualMemory();

  // The keymap of an app, the first one by name; reads the folder again. Empty if there is none; `problem` is then the
  // reason, for display.
  QString Find(const QString& app, QString* problem) const;
  // The apps that have a keymap, in the order of their files.
  QStringList Apps() const;

  QString LastApp() const;
  // Returns the error, or an empty string.
  QString Remember(const QString& app) const;

 private:
  const QString folder_;
  const QString memory_;
};

}  // namespace tavi

#endif  // HOST_PLAY_APP_KEYMAPS_H_
