#include "host/picture/record_picture.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QXmlStreamReader>

#include "host/picture/time_colour.h"
#include "host/record/record_file.h"
#include "tests/host/record/record_text.h"

namespace tavi {
namespace {

// A display of 1000 x 500 that is drawn with a width of 1100 and a height of 550, with its corner at 24, 82 (margin 24,
// header 58).
class RecordPicture : public testing::Test {
 protected:
  void Draw(const QByteArray& text, const QString& title = QStringLiteral("a.json")) {
    const RecordFile record = ReadRecordText(text);
    ASSERT_FALSE(record.HasErrors());
    RecordInfo info;
    info.resolution = QSize(1000, 500);
    paths_ = FollowContacts(record.root);
    Read(DrawRecord({title, info, paths_}));
  }

  RecordPaths paths_;
  QStringList texts_;
  QStringList ways_;   // "colour corner corner"
  QStringList dots_;   // "x,y colour"
  QStringList rings_;  // "x,y colour"

 private:
  void Read(const QByteArray& picture) {
    QXmlStreamReader xml(picture);
    while (!xml.atEnd()) {
      if (xml.readNext() == QXmlStreamReader::StartElement) ReadElement(&xml);
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  }

  void ReadElement(QXmlStreamReader* xml) {
    const QXmlStreamAttributes attributes = xml->attributes();
    const auto value = [&](const char* name) { return attributes.value(QLatin1String(name)).toString(); };
    if (xml->name() == QLatin1String("polyline")) ways_ += value("stroke") + " " + value("points");
    if (xml->name() == QLatin1String("circle")) {
      const bool is_ring = value("fill") == QLatin1String("none");
      (is_ring ? rings_ : dots_) += value("cx") + "," + value("cy") + " " + value(is_ring ? "stroke" : "fill");
    }
    if (xml->name() == QLatin1String("text")) texts_ += xml->readElementText();
  }
};

// Down at (0.5, 0.5) after 100 ms: 24 + 550, 82 + 275. Moves to (1, 0.5) at 200 ms, the end of the record, and is
// lifted there.
constexpr char kDrag[] = R"~(
    {"timing": 100, "type": "touch", "data": "press_rel:(0.5,0.5)",
               "extra1" : "3"
},
    {"timing": 100, "type": "touch", "data": "press_rel:(1,0.5)", "extra1": "3"},
    {"timing": 0, "type": "touch", "data": "release", "extra1": "3"})~";

TEST_F(RecordPicture, DrawsTheWayOfAFingerInTheColoursOfTime) {
  Draw(WithActions(kDrag));
  const QString middle = TimeColour(31);  // 100 of 200 ms: 63 * 100 / 200, truncated
  const QString end = TimeColour(63);
  EXPECT_EQ(ways_, QStringList{end + " 574.0,357.0 1124.0,357.0"});
  // The last of each belongs to the legend.
  EXPECT_EQ(dots_.mid(0, 1), QStringList{"574.0,357.0 " + middle});
  EXPECT_EQ(rings_.mid(0, 1), QStringList{"1124.0,357.0 " + end});
  EXPECT_EQ(dots_.size(), 2);
  EXPECT_EQ(rings_.size(), 2);
}

TEST_F(RecordPicture, HasALegend) {
  Draw(WithActions(kDrag), "<walk> & \"talk\".json");
  EXPECT_EQ(texts_[0], QStringLiteral("<walk> & \"talk\".json"));
  EXPECT_EQ(texts_[1], QStringLiteral("display 1000 x 500  |  plays 0.200 s  |  1 contact"));
  for (const char* text : {"0.000 s", "0.050 s", "0.100 s", "0.150 s", "0.200 s", "1",
                           "a finger is put down, with its number", "not shown: 1 vcontrol"}) {
    EXPECT_TRUE(texts_.contains(QLatin1String(text))) << text;
  }
}

TEST_F(RecordPicture, AFingerThatStaysDownHasNoRing) {
  Draw(WithActions(R"~({"type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "3"})~"));
  EXPECT_EQ(rings_.size(), 1);  // the legend's
  EXPECT_TRUE(texts_[1].endsWith("1 contact, 1 still down at the end"));
}

TEST_F(RecordPicture, FingersOfOnePlaceShareTheirLabel) {
  QByteArray taps;
  for (const char* point : {"(0.5,0.5)", "(0.5,0.5)", "(0.9,0.9)", "(0.5,0.5)"}) {
    taps += QByteArray(taps.isEmpty() ? "" : ",") + R"({"type": "touch", "data": "press_rel:)" + point +
            R"(", "extra1": "3"},
        {"type": "touch", "data": "release", "extra1": "3"})";
  }
  Draw(WithActions(taps));
  EXPECT_TRUE(texts_.contains("1-2, 4"));
  EXPECT_TRUE(texts_.contains("3"));
}

TEST_F(RecordPicture, FollowsSeveralFingersAtOnce) {
  Draw(WithActions(R"~(
      {"timing": 10, "type": "touch", "data": "press_multi_rel:(0.1,0.1):(0,0):(0.2,0.2)", "extra1": "18:19:20"},
      {"timing": 10, "type": "touch", "data": "release_multi", "extra1": "20"},
      {"timing": 10, "type": "touch", "data": "reset"},
      {"timing": 10, "type": "touch", "data": "release", "extra1": "18"})~"));
  ASSERT_EQ(paths_.contacts.size(), 2);  // (0,0) is not a point
  EXPECT_EQ(paths_.contacts[0].points.first().point, QPointF(0.1, 0.1));
  EXPECT_EQ(paths_.contacts[0].up_ms, 30);  // by the reset; the release after it has no effect
  EXPECT_EQ(paths_.contacts[1].up_ms, 20);
}

// The first part plays twice: at 10 and, after a pause of 5, at 25 ms. The gap of 75 belongs to no part, and the second
// part begins after it.
TEST_F(RecordPicture, TellsThePartsOfAMergedRecord) {
  Draw(WithHeader(R"~("merged_actions": [
      {"control": {"file_name": "tap.json", "repeat_times": 2, "repeat_delay": 5, "till_next_item_delay": 75},
       "actions": [{"timing": 10, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "1"}]
},
      {"actions": [{"timing": 20, "type": "touch", "data": "release", "extra1": "1"}]}])~"));
  EXPECT_TRUE(texts_.contains("1. tap.json: 0.000 s to 0.025 s"));
  EXPECT_TRUE(texts_.contains("2. part: 0.100 s to 0.120 s"));
  EXPECT_EQ(paths_.contacts.size(), 1);  // fingers continue across parts, as in a replay
}

TEST_F(RecordPicture, LeavesOutWhatIsFarOffTheDisplay) {
  Draw(WithActions(R"~(
      {"type": "touch", "data": "press_rel:(1e308,0.5)", "extra1": "1"},
      {"type": "touch", "data": "press_rel:(nan,0.5)", "extra1": "2"})~"));
  EXPECT_TRUE(paths_.contacts.isEmpty());
}

TEST_F(RecordPicture, TellsWhenItIsNotAll) {
  Draw(WithHeader(
      R"("control": {"repeat_times": 2000000000}, "actions": [{"timing": 1, "type": "vcontrol", "data": "a"}])"));
  EXPECT_TRUE(texts_.contains("only the first 100000 steps are shown"));
}

TEST_F(RecordPicture, OfNothingIsAPictureToo) {
  Draw(WithHeader(R"("actions": [])"));
  EXPECT_TRUE(texts_[1].endsWith("plays 0.000 s  |  0 contacts"));
}

TEST_F(RecordPicture, HoldsOnlyWhatXmlMayHold) {
  Draw(WithActions(kDrag),
       QString("a") + QChar(1) + QChar(0xD800) + QChar(0xFFFF) + QString::fromUtf8("\xf0\x9f\x98\x80"));
  EXPECT_EQ(texts_[0], QString::fromUtf8("a\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd\xf0\x9f\x98\x80"));
}

TEST(TimeColours, RunFromBlueToOrange) {
  EXPECT_EQ(TimeColour(0), QStringLiteral("#1b2a8c"));
  EXPECT_EQ(TimeColour(kTimeColours - 1), QStringLiteral("#f5a014"));
  EXPECT_EQ(TimeColourIndex(0, 0), 0);
  EXPECT_EQ(TimeColourIndex(0, 100), 0);
  EXPECT_EQ(TimeColourIndex(100, 100), kTimeColours - 1);
}

}  // namespace
}  // namespace tavi
