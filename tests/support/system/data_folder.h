// Where the program under test keeps its data.
#ifndef TESTS_SUPPORT_SYSTEM_DATA_FOLDER_H_
#define TESTS_SUPPORT_SYSTEM_DATA_FOLDER_H_

#include <functional>

#include <QString>
#include <QStringList>

namespace tavi {

// For this process and its children, while it exists: a folder in `place`, or on Windows, where that cannot be chosen,
// the user's own. Then other tests that have one wait, and in the end its new folders are removed.
class DataFolder {
 public:
  explicit DataFolder(const QString& place);
  ~DataFolder() { leave_(); }
  DataFolder(const DataFolder&) = delete;
  DataFolder& operator=(const DataFolder&) = delete;

  const QString& Path() const { return path_; }
  // The folders in it that were not there before.
  QStringList NewFolders() const;

 private:
  std::function<void()> leave_;
  QString path_;
  QStringList before_;
};

}  // namespace tavi

#endif  // TESTS_SUPPORT_SYSTEM_DATA_FOLDER_H_
