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

// A keymap file and its last usable state: while its author is in the middle of a change, the game continues with that.
//
// Main thread.
class KeymapSource {
 public:
  KeymapSource();
  ~KeymapSource();
  KeymapSource(const KeymapSource&) = delete;
  KeymapSource& operator=(const KeymapSource&) = delete;

  // Reads the file; an empty path is no keymap. Another path discards the previous state.
  void Read(const QString& path);
  // The same for a text that replaces the content of the file.
  void ReadText(const QString& path, const QByteArray& text);

  const QString& Path() const { return path_; }
  // The file as last read. Valid until the next read.
  const tavikeymapmanager::LoadResult& LastRead() const { return *read_; }

  // The file cannot be used in its current state, but an earlier state is in use.
  bool KeepsEarlierState() const;
  // The keymap in use: the last state without errors, or an empty keymap if there was none.
  const tavikeymapmanager::LoadResult& InUse() const;
  // The texts of these two states.
  const QByteArray& TextInUse() const;
  const QByteArray& LastText() const;

  // A file from which the library can load the keymap in use: a copy, because the original may have changed.
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
