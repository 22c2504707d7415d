#ifndef HOST_WHOLE_FILE_H_
#define HOST_WHOLE_FILE_H_

#include <memory>

#include <QString>

class QTemporaryDir;

namespace tavi {

// A file that is made whole or not at all, also when the program is interrupted meanwhile: it is made in a folder of
// its own beside its place, and moved there when it is done. Where no folder can be made, and for what is no plain
// file, it is made in its place.
//
// One at a time. Main thread.
class WholeFile {
 public:
  explicit WholeFile(const QString& target);
  ~WholeFile();
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  // Where to make it.
  const QString& WorkingName() const { return working_name_; }
  // Moves it to its place. False, and nothing changed, when that cannot be.
  bool Keep();

 private:
  const QString target_;
  QString working_name_;
  std::unique_ptr<QTemporaryDir> folder_;  // null: it is made in its place
};

}  // namespace tavi

#endif  // HOST_WHOLE_FILE_H_
