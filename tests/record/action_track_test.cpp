// A list of actions with their times: its cost.
#include "record/action_track.h"

#include <gtest/gtest.h>

namespace taviinputmanager {
namespace {

// A separate text, like one from a line.
QString Own(const char* text) { return QString::fromLatin1(text); }

TEST(ActionTrack, EqualShortTextsAreOne) {
  ActionTrack track;
  for (const char* slot : {"11", "12", "11"}) {
    track.Add({0, Own("touch"), Own("release"), Own(slot), Own("")});
  }
  const auto& actions = track.Actions();
  EXPECT_EQ(actions.at(0)->type.constData(), actions.at(2)->type.constData());
  EXPECT_EQ(actions.at(0)->data.constData(), actions.at(2)->data.constData());
  EXPECT_EQ(actions.at(0)->extra1.constData(), actions.at(2)->extra1.constData());
  EXPECT_EQ("12", actions.at(1)->extra1.toStdString());
  EXPECT_EQ("release", actions.at(1)->data.toStdString());
}

// With equal letters in the indexed positions.
TEST(ActionTrack, TextsThatAreAlikeStayApart) {
  ActionTrack track;
  const QStringList texts{"abcde", "aXcde", "abcXe", "abcde"};
  for (const QString& text : texts) track.Add({0, text, text, text, text});
  for (int i = 0; i < texts.size(); ++i) {
    EXPECT_EQ(texts.at(i), track.Actions().at(i)->type);
    EXPECT_EQ(texts.at(i), track.Actions().at(i)->extra2);
  }
}

}  // namespace
}  // namespace taviinputmanager
