#ifndef HOST_SESSION_KEYMAP_SOURCE_H_
#define HOST_SESSION_KEYMAP_SOURCE_H_

#include <memory>

#include <QByteArray>
#include <QString>

class QTemporaryDir;

namespace tavikeymapmanager {
struct LoadResult;
}

namespace tavi {

// A keymap file and the last state of it that could be used: while its author is in the middle of a change, players
// play on.
//
// Main thread.
class KeymapSource {
 public:
  KeymapSource();
  ~KeymapSource();
  KeymapSource(const KeymapSource&) = delete;
  KeymapSource& operator=(const KeymapSource&) = delete;

  // Reads the file; an empty path is no keymap. Another path forgets what was there before.
  void Read(const QString& path);
  // The same of a text that is to be that file's.
  void ReadText(const QString& path, const QByteArray& text);

  const QString& Path() const { return path_; }
  // The file as it was last read. Valid until it is read again.
  const tavikeymapmanager::LoadResult& LastRead() const { return *read_; }

  // The file cannot be used as it is, but as it was before.
  bool KeepsEarlierState() const;
  // What is in use: the file's last state without errors, or an empty keymap where there was none.
  const tavikeymapmanager::LoadResult& InUse() const;
  // The texts of these two states.
  const QByteArray& TextInUse() const;
  const QByteArray& LastText() const;

  // A file for the library to load what is in use from: a copy, since the file itself may be another one by now.
  QString PathForUse();

 private:
  void Take(const QString& path, tavikeymapmanager::LoadResult result);

  QString path_;
  std::unique_ptr<tavikeymapmanager::LoadResult> read_;  // last
  std::unique_ptr<tavikeymapmanager::LoadResult> good_;  // an earlier state, while `read_` has errors; else null
  std::unique_ptr<QTemporaryDir> copies_;                // holds the file for the library
};

}  // namespace tavi

#endif  // HOST_SESSION_KEYMAP_SOURCE_H_
