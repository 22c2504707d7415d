#include "host/command/command_line.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

const QVector<OptionRule> kRules = {{QStringLiteral("--flag"), false}, {QStringLiteral("--value"), true}};

ParsedArguments Parse(const QStringList& arguments) { return ParseArguments(arguments, kRules); }

TEST(CommandLine, OptionsStandAnywhere) {
  const ParsedArguments parsed = Parse({"one", "--value", "7", "two", "--flag"});
  EXPECT_EQ(parsed.error, QString());
  EXPECT_EQ(parsed.positional, (QStringList{"one", "two"}));
  EXPECT_EQ(parsed.options.value("--value"), QStringLiteral("7"));
  EXPECT_TRUE(parsed.options.contains("--flag"));
}

TEST(CommandLine, KeepsTheOrderInWhichThingsWereGiven) {
  QStringList given;
  for (const GivenArgument& argument : Parse({"one", "--value", "7", "--flag", "--", "--two"}).in_order) {
    given += argument.option + ">" + argument.value;
  }
  EXPECT_EQ(given, (QStringList{">one", "--value>7", "--flag>", ">--two"}));
}

TEST(CommandLine, AValueMayFollowAnEqualsSign) {
  EXPECT_EQ(Parse({"--value=a=b"}).options.value("--value"), QStringLiteral("a=b"));
  EXPECT_EQ(Parse({"--value="}).options.value("--value"), QString());
}

TEST(CommandLine, TwoDashesEndTheOptions) {
  const ParsedArguments parsed = Parse({"--", "--flag", "--help"});
  EXPECT_EQ(parsed.positional, (QStringList{"--flag", "--help"}));
  EXPECT_FALSE(parsed.help);
}

TEST(CommandLine, ADashAloneIsNoOption) { EXPECT_EQ(Parse({"-"}).positional, QStringList{"-"}); }

TEST(CommandLine, TellsWhatIsWrong) {
  EXPECT_EQ(Parse({"--other=3"}).error, QStringLiteral("unknown option \"--other\""));
  EXPECT_EQ(Parse({"-x"}).error, QStringLiteral("unknown option \"-x\""));
  EXPECT_EQ(Parse({"--value"}).error, QStringLiteral("--value needs a value"));
  EXPECT_EQ(Parse({"--flag=1"}).error, QStringLiteral("--flag takes no value"));
}

TEST(CommandLine, HelpIsFoundWhateverElseIsWrong) {
  EXPECT_TRUE(Parse({"--other", "--help"}).help);
  EXPECT_TRUE(Parse({"-h"}).help);
  EXPECT_FALSE(Parse({"help"}).help);
}

// The page is the only list of a command's options.
TEST(CommandLine, APageOfHelpTellsTheOptions) {
  constexpr char kPage[] =
      "Usage: tavi play [OPTIONS] -o FILE\n"
      "\n"
      "  --live         wait, and print each line\n"
      "                 --not-one of them\n"
      "  --size WxH     the display's size\n"
      "  --background PICTURE\n"
      "                 a picture\n"
      "  -o FILE        where to write it\n"
      "  name           no option at all\n";
  QStringList texts;
  for (const OptionRule& rule : OptionsOf(kPage)) texts += rule.name + (rule.takes_value ? " takes a value" : "");
  EXPECT_EQ(texts, (QStringList{"--live", "--size takes a value", "--background takes a value", "-o takes a value"}));
}

TEST(CommandLine, WhatWasNotGivenStaysAsItIs) {
  const ParsedArguments parsed = Parse({"--value", "7", "--value", "8"});
  int number = 3;
  EXPECT_EQ(TakeWholeNumber(parsed.Find("--other"), 1, &number), QString());
  EXPECT_EQ(number, 3);
  EXPECT_EQ(TakeWholeNumber(parsed.Find("--value"), 1, &number), QString());
  EXPECT_EQ(number, 8);  // the last one counts
}

TEST(CommandLine, AValueThatIsWrongIsToldAndLeftOut) {
  const std::optional<GivenArgument> given = Parse({"--value", "0"}).Find("--value");
  int number = 3;
  double factor = 3;
  QSize size(3, 3);
  EXPECT_EQ(TakeWholeNumber(given, 1, &number), QStringLiteral("--value needs a whole number from 1 on, not \"0\""));
  EXPECT_EQ(TakeFactor(given, &factor), QStringLiteral("--value needs a number above 0, not \"0\""));
  EXPECT_EQ(TakeSize(given, &size), QStringLiteral("--value needs a size such as 1280x720, not \"0\""));
  EXPECT_EQ(number, 3);
  EXPECT_EQ(factor, 3);
  EXPECT_EQ(size, QSize(3, 3));
}

TEST(CommandLine, ReadsNumbers) {
  EXPECT_EQ(ParseWholeNumber("1", 1), 1);
  EXPECT_EQ(ParseWholeNumber(QStringLiteral(u"\u00A0-1"), -1), -1);  // blanks and signs are those of Unicode
  EXPECT_EQ(ParseWholeNumber(QStringLiteral(u"\u22121"), -1), -1);
  for (const char* wrong : {"", "0", "-3", "1.5", "one", "2147483648"}) {
    EXPECT_EQ(ParseWholeNumber(QLatin1String(wrong), 1), std::nullopt) << wrong;
  }
  EXPECT_EQ(ParseFactor("0.5"), 0.5);
  for (const char* wrong : {"", "0", "-1", "fast", "inf", "nan"}) {
    EXPECT_EQ(ParseFactor(QLatin1String(wrong)), std::nullopt) << wrong;
  }
}

TEST(CommandLine, ReadsSizes) {
  EXPECT_EQ(ParseSize("1280x720"), QSize(1280, 720));
  EXPECT_EQ(ParseSize("1x16384"), QSize(1, 16384));
  EXPECT_EQ(ParseSize(QStringLiteral(u"1\u00A0x\u20092")), QSize(1, 2));
  for (const char* wrong : {"", "1280", "1280x", "x720", "0x720", "-1x5", "1280x720x1", "16385x1", "axb"}) {
    EXPECT_TRUE(ParseSize(QLatin1String(wrong)).isEmpty()) << wrong;
  }
}

}  // namespace
}  // namespace tavi
