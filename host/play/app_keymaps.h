#ifndef HOST_PLAY_APP_KEYMAPS_H_
#define HOST_PLAY_APP_KEYMAPS_H_

#include <QString>
#include <QStringList>

namespace tavi {

// A folder with a keymap for each app: the keymap's `package` says whose it is. The app that was played last is
// remembered for each folder.
//
// Main thread.
class AppKeymaps {
 public:
  // `memory` is the file that it is remembered in; empty: it is not.
  AppKeymaps(const QString& folder, const QString& memory);

  // ~/.config/tavi/play.ini.
  static QString UsualMemory();

  // The keymap of an app, the first one by name; the folder is read anew. Empty, and `problem` says why, for people,
  // where there is none.
  QString Find(const QString& app, QString* problem) const;
  // The apps that have a keymap, in the order of their files.
  QStringList Apps() const;

  QString LastApp() const;
  // What went wrong, or nothing.
  QString Remember(const QString& app) const;

 private:
  const QString folder_;
  const QString memory_;
};

}  // namespace tavi

#endif  // HOST_PLAY_APP_KEYMAPS_H_
