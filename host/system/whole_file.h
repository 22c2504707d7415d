// The one place where the program writes files: records, pictures, keymaps and copies of them.
#ifndef HOST_SYSTEM_WHOLE_FILE_H_
#define HOST_SYSTEM_WHOLE_FILE_H_

#include <memory>

#include <QByteArray>
#include <QString>

class QFile;
class QTemporaryDir;

namespace tavi {

// A file that is made whole or not at all, also when the program is interrupted meanwhile: it is made in a folder of
// its own beside its place, and moved there when it is on the disk. Owner and permissions of a file that was there
// stay, and a link goes on to point at its file.
//
// Where no folder can be made beside it, and for what is no plain file, it is made in the folder of temporary files and
// written over what is there, once there is room for the whole.
//
// One at a time. Main thread.
class WholeFile {
 public:
  explicit WholeFile(const QString& target);
  ~WholeFile();
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  // Where to make it. Nothing is there yet.
  const QString& WorkingName() const { return working_name_; }
  // Brings it to its place. False, and what was there before stays, when that cannot be.
  bool Keep();
  // Why it cannot be kept, as the system says it ("No space left on device"); before that, why it never could be.
  // Empty: nothing is known to be wrong.
  const QString& Problem() const { return problem_; }

 private:
  void FindPlace();
  QString MakeFolder();
  QString Place();

  QString target_;  // behind all links
  QString working_name_;
  QString problem_;
  bool is_beside_ = false;  // it is made in the folder of its target's
  std::unique_ptr<QTemporaryDir> folder_;
};

// Makes these bytes the content of a file, or changes nothing. Each of these returns what went wrong, as the system
// says it, or nothing.
QString WriteWholeFile(const QString& target, const QByteArray& bytes);
// The same with the content of another file.
QString CopyWholeFile(const QString& from, const QString& target);
// Whether a file of this name could be written as things are; nothing is changed.
QString TryWholeFile(const QString& target);

}  // namespace tavi

#endif  // HOST_SYSTEM_WHOLE_FILE_H_
