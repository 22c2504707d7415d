#include "host/command/record_merge.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(RecordMerge, OptionsAreAboutTheRecordInFrontOfThem) {
  const MergeOrder order = ReadMergeOrder({"-o", "day.json", "a.json", "--times", "3", "--delay", "500", "--speed", "2",
                                           "--gap", "250", "b.json", "--speed=0.5", "c.json"});
  EXPECT_EQ(order.problem, QString());
  EXPECT_EQ(order.target, QStringLiteral("day.json"));
  ASSERT_EQ(order.records.size(), 3);
  EXPECT_EQ(order.records[0].file_name, QStringLiteral("a.json"));
  EXPECT_EQ(order.records[0].repeat_times, 3);
  EXPECT_EQ(order.records[0].repeat_delay, 500);
  EXPECT_EQ(order.records[0].speed_ratio, 2);
  EXPECT_EQ(order.records[0].till_next_item_delay, 250);
  EXPECT_EQ(order.records[1].file_name, QStringLiteral("b.json"));
  EXPECT_EQ(order.records[1].repeat_times, 1);
  EXPECT_EQ(order.records[1].repeat_delay, 0);
  EXPECT_EQ(order.records[1].speed_ratio, 0.5);
  EXPECT_EQ(order.records[1].till_next_item_delay, 0);
  EXPECT_EQ(order.records[2].speed_ratio, 1);
}

TEST(RecordMerge, TheTargetMayStandAnywhere) {
  EXPECT_EQ(ReadMergeOrder({"a", "-o", "t", "--times", "2"}).records[0].repeat_times, 2);
}

TEST(RecordMerge, NamesMayHaveAnyCharacters) {
  const QStringList names = {"a:times=3.json", "b=c,d", "with blank", "%1", "*?[x]", "-dash", "--times"};
  const MergeOrder order = ReadMergeOrder(QStringList{"-o", "%2:x", "--"} + names);
  EXPECT_EQ(order.problem, QString());
  EXPECT_EQ(order.target, QStringLiteral("%2:x"));
  QStringList read;
  for (const MergeParam& record : order.records) read += record.file_name;
  EXPECT_EQ(read, names);
}

TEST(RecordMerge, TellsWhatIsWrong) {
  const struct {
    const char* name;
    QStringList arguments;
    const char* problem;
  } rows[] = {
      {"no target", {"a"}, "-o FILE is missing"},
      {"no records", {"-o", "t"}, "a record is missing"},
      {"an empty target", {"-o", "", "a"}, "-o FILE is missing"},
      {"an option of nothing", {"-o", "t", "--times", "2", "a"}, "--times must follow the record that it applies to"},
      {"no times at all", {"-o", "t", "a", "--times", "0"}, "--times needs a whole number from 1 on, not \"0\""},
      {"a pause back", {"-o", "t", "a", "--delay", "-1"}, "--delay needs a whole number from 0 on, not \"-1\""},
      {"a gap with a fraction", {"-o", "t", "a", "--gap", "1.5"}, "--gap needs a whole number from 0 on, not \"1.5\""},
      {"no speed", {"-o", "t", "a", "--speed", "0"}, "--speed needs a number above 0, not \"0\""},
      {"another option", {"-o", "t", "a", "--repeat", "2"}, "unknown option \"--repeat\""},
      {"an option without value", {"-o", "t", "a", "--gap"}, "--gap needs a value"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    EXPECT_EQ(ReadMergeOrder(row.arguments).problem, QLatin1String(row.problem));
  }
}

}  // namespace
}  // namespace tavi
