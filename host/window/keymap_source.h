#ifndef HOST_WINDOW_KEYMAP_SOURCE_H_
#define HOST_WINDOW_KEYMAP_SOURCE_H_

#include <memory>

#include <QByteArray>
#include <QString>

class QTemporaryFile;

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
  const QByteArray& TextInUse() const { return good_ ? good_text_ : text_; }
  const QByteArray& LastText() const { return text_; }

  // A file for the library to load it from: the file itself, or a copy of its earlier state.
  QString PathForUse();

 private:
  void Take(const QString& path, const QByteArray& text, tavikeymapmanager::LoadResult result);

  QString path_;
  std::unique_ptr<tavikeymapmanager::LoadResult> read_;  // last
  std::unique_ptr<tavikeymapmanager::LoadResult> good_;  // an earlier state, while `read_` has errors; else null
  QByteArray text_;                                      // of `read_`
  QByteArray good_text_;                                 // of `good_`
  std::unique_ptr<QTemporaryFile> copy_;
};

}  // namespace tavi

#endif  // HOST_WINDOW_KEYMAP_SOURCE_H_
