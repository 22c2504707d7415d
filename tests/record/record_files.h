// Record files of a test, and the results of walking them.
#ifndef TESTS_RECORD_RECORD_FILES_H_
#define TESTS_RECORD_RECORD_FILES_H_

#include <gtest/gtest.h>
#include <memory>

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "record/merge_record_actions.h"
#include "record/record_action.h"
#include "record/replay_context.h"
#include "record/single_record_actions.h"

namespace taviinputmanager {

class RecordFileUtils;

// A folder of the test's own. It contains all files of a test, including those that the library writes: these are
// copied to the folder in the environment variable TAVI_WRITTEN_RECORDS, for later checks.
class RecordFiles {
 protected:
  RecordFiles();
  ~RecordFiles();

  // The path of a file with this name, which need not exist.
  QString Path(const QString& name) const;
  // Writes a file, and returns its path.
  QString Put(const QString& name, const QByteArray& bytes) const;

  static QByteArray Bytes(const QString& path);
  // The test fails on a file that is not a JSON object.
  static QJsonObject JsonOf(const QString& path);
  // The names of all files in the folder, in order, including hidden ones.
  QStringList Names() const;

  static RecordFileUtils* Utils();

 private:
  QTemporaryDir folder_;
  mutable QStringList put_;  // names of the files that the test wrote itself
};

// JSON with apostrophes instead of quotation marks.
QByteArray Text(QByteArray json);
// The same as an object. The test fails on one that cannot be read.
QJsonObject Json(const QByteArray& json);
// Nested lists, objects, or both alternating, with this many levels.
QByteArray NestedLists(int levels);
QByteArray NestedObjects(int levels);
QByteArray NestedByTurns(int levels);
// In one line, keys in ascending order, with apostrophes.
std::string Compact(const QJsonObject& json);

// A list of actions of the type "touch" that are identified by their data.
struct Step {
  int timing;
  const char* data;
};
std::shared_ptr<SingleRecordActions> Single(std::initializer_list<Step> steps, const MergeParam& control = {});
std::shared_ptr<MergeRecordActions> Merged(const MergeRecordActions::Items& items, const MergeParam& control = {});

// Controls with some interesting values.
MergeParam Repeated(int times, int delay_ms = 0);
MergeParam AtSpeed(double ratio);
MergeParam WithGap(int ms, double speed_ratio = 1.0);

// The results of a walk, "delay data" for each step, "delay type" for one without data, "none" for an item without
// anything to play. Ends with "..." if there are more than `limit`.
QStringList Walk(RecordActions* actions, int limit = 1000);
// The results of a replay.
QStringList StepsOfReplay(ReplayContext* context, int limit = 1000);

#define EXPECT_STEPS(actions, ...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), Walk(actions).join('\n').toStdString())
#define EXPECT_NO_STEPS(actions) EXPECT_EQ(std::string(), Walk(actions).join('\n').toStdString())

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_RECORD_FILES_H_
