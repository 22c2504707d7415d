// Record files of a test, and what a walk over them gives.
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

  // Of a file of this name, which need not be there.
  QString Path(const QString& name) const;
  // Writes a file, and gives its path.
  QString Put(const QString& name, const QByteArray& bytes) const;

  static QByteArray Bytes(const QString& path);
  // The test fails on a file that is no JSON object.
  static QJsonObject JsonOf(const QString& path);
  // The names of all files in the folder, in order, also hidden ones.
  QStringList Names() const;

  static RecordFileUtils* Utils();

 private:
  QTemporaryDir folder_;
  mutable QStringList put_;  // names of the files that the test wrote itself
};

// JSON with apostrophes in place of quotation marks.
QByteArray Text(QByteArray json);
// The same as an object. The test fails on one that cannot be read.
QJsonObject Json(const QByteArray& json);
// Lists, objects, or both by turns, each in the one before it: as many levels as said.
QByteArray NestedLists(int levels);
QByteArray NestedObjects(int levels);
QByteArray NestedByTurns(int levels);
// In one line, keys in ascending order, with apostrophes.
std::string Compact(const QJsonObject& json);

// A list of actions of the type "touch" that are known by their data.
struct Step {
  int timing;
  const char* data;
};
std::shared_ptr<SingleRecordActions> Single(std::initializer_list<Step> steps, const MergeParam& control = {});
std::shared_ptr<MergeRecordActions> Merged(const MergeRecordActions::Items& items, const MergeParam& control = {});

// Controls of which some values are of interest.
MergeParam Repeated(int times, int delay_ms = 0);
MergeParam AtSpeed(double ratio);
MergeParam WithGap(int ms, double speed_ratio = 1.0);

// All that a walk gives, "delay data" each, "delay type" of what has no data, "none" where an item has nothing to play.
// Ends with "..." where there is more than `limit`.
QStringList Walk(RecordActions* actions, int limit = 1000);
// What a replay makes of it.
QStringList StepsOfReplay(ReplayContext* context, int limit = 1000);

#define EXPECT_STEPS(actions, ...) \
  EXPECT_EQ((QStringList{__VA_ARGS__}).join('\n').toStdString(), Walk(actions).join('\n').toStdString())
#define EXPECT_NO_STEPS(actions) EXPECT_EQ(std::string(), Walk(actions).join('\n').toStdString())

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_RECORD_FILES_H_
