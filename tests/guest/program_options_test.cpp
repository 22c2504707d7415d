#include "guest/program/program_options.h"

#include <gtest/gtest.h>

namespace taviguest {
namespace {

TEST(GuestProgramOptions, WithoutWordsAreTheUsualOnes) {
  const ProgramOptions options = ReadProgramOptions({});
  EXPECT_EQ(options.error, "");
  EXPECT_EQ(options.guest.surface.width, 1280);
  EXPECT_EQ(options.guest.surface.height, 720);
  EXPECT_EQ(options.guest.name, "tavi");
  EXPECT_EQ(options.guest.system, GuestSystem::kLinux);
  EXPECT_FALSE(options.guest.display || options.guest.has_gamepad || options.guest.has_touchpad);
  EXPECT_FALSE(options.guest.has_full_keyboard || options.listen || options.is_dry_run || options.is_timeline);
}

TEST(GuestProgramOptions, TakeTheirValues) {
  const ProgramOptions options =
      ReadProgramOptions({"--size=1x16384", "--display", "-2", "--name", "phone 2", "--for", "android", "--keyboard",
                          "--gamepad", "--touchpad", "--timeline", "--dry-run", "--listen", "unix:/run/guest"});
  EXPECT_EQ(options.error, "");
  EXPECT_EQ(options.guest.surface.width, 1);
  EXPECT_EQ(options.guest.surface.height, 16384);
  EXPECT_EQ(options.guest.display, -2);
  EXPECT_EQ(options.guest.name, "phone 2");
  EXPECT_EQ(options.guest.system, GuestSystem::kAndroid);
  EXPECT_TRUE(options.guest.has_gamepad && options.guest.has_touchpad && options.guest.has_full_keyboard);
  EXPECT_TRUE(options.is_dry_run && options.is_timeline);
  EXPECT_EQ(options.listen->path, "/run/guest");
  EXPECT_EQ(ReadProgramOptions({"--input", "lines"}).input, "lines");
  EXPECT_EQ(ReadProgramOptions({"--listen=tcp:5555"}).listen->port, 5555);
  EXPECT_TRUE(ReadProgramOptions({"-h"}).is_help);
}

TEST(GuestProgramOptions, TellWhatIsWrong) {
  const std::string long_path = "unix:/" + std::string(107, 'a');  // 108 bytes
  const struct {
    std::vector<std::string> words;
    std::string error;
  } rows[] = {
      {{"--size", "0x5"}, "--size needs a size such as 1280x720, not \"0x5\""},
      {{"--size", "1280"}, "--size needs a size such as 1280x720, not \"1280\""},
      {{"--size", "16385x5"}, "--size needs a size such as 1280x720, not \"16385x5\""},
      {{"--size", "1x2x3"}, "--size needs a size such as 1280x720, not \"1x2x3\""},
      {{"--size"}, "--size needs a value"},
      {{"--display", "1.5"}, "--display needs a number, not \"1.5\""},
      {{"--name", ""}, "--name needs a name of 1 to 60 bytes, not \"\""},
      {{"--name", std::string(61, 'a')}, "--name needs a name of 1 to 60 bytes, not \"" + std::string(61, 'a') + '"'},
      {{"--for", "ios"}, "--for needs android or linux, not \"ios\""},
      {{"--listen", "5555"}, "--listen needs tcp:PORT or unix:PATH, not \"5555\""},
      {{"--listen", "tcp:65536"}, "--listen needs tcp:PORT or unix:PATH, not \"tcp:65536\""},
      {{"--listen", "tcp:"}, "--listen needs tcp:PORT or unix:PATH, not \"tcp:\""},
      {{"--listen", "tcp:10.0.0.1:5"}, "--listen needs tcp:PORT or unix:PATH, not \"tcp:10.0.0.1:5\""},
      {{"--listen", "unix:"}, "--listen needs tcp:PORT or unix:PATH, not \"unix:\""},
      {{"--listen", long_path}, "--listen needs tcp:PORT or unix:PATH, not \"" + long_path + '"'},
      {{"--dry-run=yes"}, "--dry-run takes no value"},
      {{"--verbose"}, "unknown option \"--verbose\""},
      {{"lines"}, "\"lines\" is not an option"},
      {{"-"}, "\"-\" is not an option"},
      {{"--input", "a", "--listen", "tcp:0"}, "use --input or --listen, not both"},
  };
  for (const auto& row : rows) EXPECT_EQ(ReadProgramOptions(row.words).error, row.error);
}

}  // namespace
}  // namespace taviguest
