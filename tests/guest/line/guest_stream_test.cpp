#include "guest/line/guest_stream.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "guest/line/timeline_line.h"

namespace taviguest {
namespace {

using Texts = std::vector<std::string>;

// Text lines are marked like those of a timeline.
Texts Taken(GuestStream* stream) {
  Texts lines;
  while (const auto line = stream->Next()) lines.push_back((line->is_text ? "text " : "") + line->line);
  return lines;
}

std::string Many(size_t count, char character) { return std::string(count, character); }

TEST(GuestStream, EventsEndInANewlineAndTextsInANul) {
  GuestStream stream;
  stream.Append(
      std::string("1:KBDPR:30:1\nTEXT:a\nb\0TEXT_CONTROL:ENTER\0"
                  "1:KBDRL:30:0\n",
                  54));
  EXPECT_EQ(Taken(&stream), (Texts{"1:KBDPR:30:1", "text TEXT:a\nb", "text TEXT_CONTROL:ENTER", "1:KBDRL:30:0"}));
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, LinesMayComeInPieces) {
  GuestStream stream;
  for (const char* piece : {"1:KBD", "PR:30", ":1"}) {
    stream.Append(piece);
    EXPECT_EQ(Taken(&stream), Texts{});
  }
  stream.Append("\nTE");
  EXPECT_EQ(Taken(&stream), Texts{"1:KBDPR:30:1"});
  stream.Append(std::string("XT:\xC3", 4));
  EXPECT_EQ(Taken(&stream), Texts{});
  stream.Append(std::string("\xA9", 2));
  EXPECT_EQ(Taken(&stream), Texts{"text TEXT:\xC3\xA9"});
}

TEST(GuestStream, EmptyLinesArePassedOver) {
  GuestStream stream;
  stream.Append("\n\n1:HATX:0\n\n");
  EXPECT_EQ(Taken(&stream), Texts{"1:HATX:0"});
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, TheLastLineMayLackItsEnd) {
  GuestStream stream;
  stream.Append("1:HATX:0");
  EXPECT_EQ(stream.Last()->line, "1:HATX:0");
  EXPECT_FALSE(stream.Last().has_value());
  stream.Append("TEXT:a\nb\n");
  EXPECT_FALSE(stream.Next().has_value());
  const auto text = stream.Last();
  EXPECT_TRUE(text->is_text);
  EXPECT_EQ(text->line, "TEXT:a\nb");
}

constexpr size_t kMost = GuestStream::kMostLineBytes;

TEST(GuestStream, ALineThatIsTooLongIsPassedOver) {
  GuestStream stream;
  stream.Append("1:" + Many(kMost, 'A'));
  const auto cut = stream.Next();
  ASSERT_TRUE(cut.has_value());
  EXPECT_TRUE(cut->is_cut);
  EXPECT_EQ(cut->line, "1:" + Many(38, 'A'));  // its first 40 bytes
  EXPECT_FALSE(stream.Next().has_value());
  stream.Append(Many(3 * kMost, 'A'));
  EXPECT_FALSE(stream.Next().has_value());  // reported once
  stream.Append("AAA\n1:HATX:0\n");
  EXPECT_EQ(Taken(&stream), Texts{"1:HATX:0"});
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(GuestStream, ALineMayBeAsLongAsTheLimit) {
  GuestStream stream;
  stream.Append(Many(kMost, 'A'));
  EXPECT_FALSE(stream.Next().has_value());
  stream.Append("\n" + Many(kMost + 1, 'B') + "\n");
  EXPECT_EQ(stream.Next()->line, Many(kMost, 'A'));
  EXPECT_TRUE(stream.Next()->is_cut);
  EXPECT_FALSE(stream.Next().has_value());
}

TEST(GuestStream, ATextThatIsTooLongEndsInItsNul) {
  GuestStream stream;
  stream.Append("TEXT:" + Many(kMost, '\n'));
  EXPECT_TRUE(stream.Next()->is_cut);
  stream.Append(
      std::string("\n1:HATX:0\n\0"
                  "1:HATY:0\n",
                  20));
  EXPECT_EQ(Taken(&stream), Texts{"1:HATY:0"});
}

TEST(GuestStream, TheRestOfALineThatIsTooLongIsNoLastLine) {
  GuestStream stream;
  stream.Append(Many(kMost + 1, 'A'));
  EXPECT_TRUE(stream.Next()->is_cut);
  EXPECT_FALSE(stream.Last().has_value());
}

TEST(TimelineLine, HasATimeAndMayHaveAMark) {
  const auto event = ReadTimelineLine("40ms 1:SLOTRELEASE:11");
  ASSERT_TRUE(event.has_value());
  EXPECT_EQ(event->ms, 40);
  EXPECT_FALSE(event->is_call || event->sent.is_text);
  EXPECT_EQ(event->sent.line, "1:SLOTRELEASE:11");

  const auto text = ReadTimelineLine("41ms text TEXT:! a");
  ASSERT_TRUE(text.has_value());
  EXPECT_TRUE(text->sent.is_text);
  EXPECT_EQ(text->sent.line, "TEXT:! a");

  EXPECT_TRUE(ReadTimelineLine("0ms ! mapped 1")->is_call);
}

TEST(TimelineLine, IsNothingElse) {
  for (const char* line : {"", "1:SLOTRELEASE:11", "40 1:HATX:0", "-1ms 1:HATX:0", "ms 1:HATX:0", "9999999999ms 1:A"}) {
    EXPECT_FALSE(ReadTimelineLine(line).has_value()) << line;
  }
}

}  // namespace
}  // namespace taviguest
