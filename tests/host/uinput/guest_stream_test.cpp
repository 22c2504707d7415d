#include "host/uinput/guest_stream.h"

#include <gtest/gtest.h>

#include <QStringList>

#include "host/uinput/timeline_line.h"

namespace tavi {
namespace {

// Text lines are marked as the timeline marks them.
QStringList Taken(GuestStream* stream) {
  QStringList lines;
  while (const auto line = stream->Next()) lines += (line->is_text ? QStringLiteral("text ") : QString()) + line->line;
  return lines;
}

TEST(GuestStream, EventsEndInANewlineAndTextsInANul) {
  GuestStream stream;
  stream.Append(
      QByteArray("1:KBDPR:30:1\nTEXT:a\nb\0TEXT_CONTROL:ENTER\0"
                 "1:KBDRL:30:0\n",
                 54));
  EXPECT_EQ(Taken(&stream), (QStringList{"1:KBDPR:30:1", "text TEXT:a\nb", "text TEXT_CONTROL:ENTER", "1:KBDRL:30:0"}));
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, LinesMayComeInPieces) {
  GuestStream stream;
  for (const char* piece : {"1:KBD", "PR:30", ":1"}) {
    stream.Append(piece);
    EXPECT_EQ(Taken(&stream), QStringList());
  }
  stream.Append("\nTE");
  EXPECT_EQ(Taken(&stream), QStringList{"1:KBDPR:30:1"});
  stream.Append(QByteArray("XT:\xC3", 4));
  EXPECT_EQ(Taken(&stream), QStringList());
  stream.Append(QByteArray("\xA9", 2));
  EXPECT_EQ(Taken(&stream), QStringList{QString::fromUtf8("text TEXT:\xC3\xA9")});
}

TEST(GuestStream, EmptyLinesArePassedOver) {
  GuestStream stream;
  stream.Append("\n\n1:HATX:0\n\n");
  EXPECT_EQ(Taken(&stream), QStringList{"1:HATX:0"});
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, TheLastLineMayLackItsEnd) {
  GuestStream stream;
  stream.Append("1:HATX:0");
  EXPECT_EQ(stream.Last()->line, QStringLiteral("1:HATX:0"));
  EXPECT_FALSE(stream.Last().has_value());
  stream.Append("TEXT:a\nb\n");
  EXPECT_FALSE(stream.Next().has_value());
  const auto text = stream.Last();
  EXPECT_TRUE(text->is_text);
  EXPECT_EQ(text->line, QStringLiteral("TEXT:a\nb"));
}

constexpr int kMost = GuestStream::kMostLineBytes;

TEST(GuestStream, ALineThatIsTooLongIsPassedOver) {
  GuestStream stream;
  stream.Append("1:" + QByteArray(kMost, 'A'));
  const auto cut = stream.Next();
  ASSERT_TRUE(cut.has_value());
  EXPECT_TRUE(cut->is_cut);
  EXPECT_EQ(cut->line, "1:" + QString(38, 'A'));  // its first 40 bytes
  EXPECT_FALSE(stream.Next().has_value());
  stream.Append(QByteArray(3 * kMost, 'A'));
  EXPECT_FALSE(stream.Next().has_value());  // told once
  stream.Append("AAA\n1:HATX:0\n");
  EXPECT_EQ(Taken(&stream), QStringList{"1:HATX:0"});
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, ALineMayBeAsLongAsTheLimit) {
  GuestStream stream;
  stream.Append(QByteArray(kMost, 'A'));
  EXPECT_FALSE(stream.Next().has_value());
  stream.Append("\n" + QByteArray(kMost + 1, 'B') + "\n");
  EXPECT_EQ(stream.Next()->line, QString(kMost, 'A'));
  EXPECT_TRUE(stream.Next()->is_cut);
  EXPECT_FALSE(stream.Next().has_value());
}

TEST(GuestStream, ATextThatIsTooLongEndsInItsNul) {
  GuestStream stream;
  stream.Append("TEXT:" + QByteArray(kMost, '\n'));
  EXPECT_TRUE(stream.Next()->is_cut);
  stream.Append(
      QByteArray("\n1:HATX:0\n\0"
                 "1:HATY:0\n",
                 20));
  EXPECT_EQ(Taken(&stream), QStringList{"1:HATY:0"});
}

TEST(GuestStream, TheRestOfALineThatIsTooLongIsNoLastLine) {
  GuestStream stream;
  stream.Append(QByteArray(kMost + 1, 'A'));
  EXPECT_TRUE(stream.Next()->is_cut);
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(TimelineLine, HasATimeAndMayHaveAMark) {
  const auto event = ReadTimelineLine("40ms 1:SLOTRELEASE:11");
  ASSERT_TRUE(event.has_value());
  EXPECT_EQ(event->ms, 40);
  EXPECT_FALSE(event->is_call || event->sent.is_text);
  EXPECT_EQ(event->sent.line, QStringLiteral("1:SLOTRELEASE:11"));

  const auto text = ReadTimelineLine("41ms text TEXT:! a");
  ASSERT_TRUE(text.has_value());
  EXPECT_TRUE(text->sent.is_text);
  EXPECT_EQ(text->sent.line, QStringLiteral("TEXT:! a"));

  EXPECT_TRUE(ReadTimelineLine("0ms ! mapped 1")->is_call);
}

TEST(TimelineLine, IsNothingElse) {
  for (const char* line : {"", "1:SLOTRELEASE:11", "40 1:HATX:0", "-1ms 1:HATX:0", "ms 1:HATX:0", "9999999999ms 1:A"}) {
    EXPECT_FALSE(ReadTimelineLine(QLatin1String(line)).has_value()) << line;
  }
}

}  // namespace
}  // namespace tavi
