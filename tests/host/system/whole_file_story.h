// The files of a test in a temporary folder, and records that the program makes from other records.
#ifndef TESTS_HOST_SYSTEM_WHOLE_FILE_STORY_H_
#define TESTS_HOST_SYSTEM_WHOLE_FILE_STORY_H_

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/program.h"

namespace tavi {

constexpr char kRecord[] =
    R"~({"info": {"total_running_time": 10},)~"
    R"~( "actions": [{"timing": 10, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"}]})~";

inline QStringList FilesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

inline void Fill(const QString& name, const char* text) {
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

inline QByteArray ContentOf(const QString& name) {
  QFile file(name);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return file.readAll();
}

class WholeFileTest : public testing::Test {
 protected:
  ~WholeFileTest() override { qunsetenv(kSharedFolder); }

  QString Path(const char* name) const { return folder_.filePath(QLatin1String(name)); }

  // In a folder that the child processes of this test's death tests use too. On some systems such a process runs the
  // test from its start, and has another folder_.
  QString SharedPath(const char* name) const {
    if (!qEnvironmentVariableIsSet(kSharedFolder)) qputenv(kSharedFolder, QFile::encodeName(folder_.path()));
    return QFile::decodeName(qgetenv(kSharedFolder)) + QLatin1Char('/') + QLatin1String(name);
  }

  QTemporaryDir folder_;

 private:
  static constexpr char kSharedFolder[] = "TAVI_TEST_FOLDER";
};

class WholeRecords : public Program {};

}  // namespace tavi

#endif  // TESTS_HOST_SYSTEM_WHOLE_FILE_STORY_H_
