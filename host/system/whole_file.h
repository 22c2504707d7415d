// The only place where the program writes files: records, pictures, keymaps and copies of them.
#ifndef HOST_SYSTEM_WHOLE_FILE_H_
#define HOST_SYSTEM_WHOLE_FILE_H_

#include <memory>

#include <QByteArray>
#include <QString>

class QFile;
class QTemporaryDir;

namespace tavi {

// A file that is written completely or not at all, even if the program is interrupted: it is written in a folder of its
// own next to its target, and moved there once it is on the disk. The owner and permissions of an existing file stay,
// and a link still points at its file.
//
// If no such folder can be created, and for targets that are not plain files, it is written in the folder of temporary
// files and then copied over the target, once there is enough space for all of it.
//
// Only one may exist at a time. Main thread.
class WholeFile {
 public:
  explicit WholeFile(const QString& target);
  ~WholeFile();
  WholeFile(const WholeFile&) = delete;
  WholeFile& operator=(const WholeFile&) = delete;

  // Where to write it. Nothing exists there yet.
  const QString& WorkingName() const { return working_name_; }
  // Moves it to its target. On failure it returns false and the target is unchanged.
  bool Keep();
  // The system's error ("No space left on device") of Keep; before that, the reason why it can only fail. Empty: no
  // error is known.
  const QString& Problem() const { return problem_; }

 private:
  void FindPlace();
  QString MakeFolder();
  QString Place();

  QString target_;  // with all links resolved
  QString working_name_;
  QString problem_;
  bool is_beside_ = false;  // it is written next to its target
  std::unique_ptr<QTemporaryDir> folder_;
};

// Makes these bytes the content of a file, or changes nothing. Each of these returns the system's error, or an empty
// string.
QString WriteWholeFile(const QString& target, const QByteArray& bytes);
// The same with the content of another file.
QString CopyWholeFile(const QString& from, const QString& target);
// Whether a file with this name can currently be written; changes nothing.
QString TryWholeFile(const QString& target);

}  // namespace tavi

#endif  // HOST_SYSTEM_WHOLE_FILE_H_
