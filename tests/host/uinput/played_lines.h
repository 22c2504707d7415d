// Guest lines, and the kernel's events that come of them, as texts.
#ifndef TESTS_HOST_UINPUT_PLAYED_LINES_H_
#define TESTS_HOST_UINPUT_PLAYED_LINES_H_

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "host/guest/guest_line.h"
#include "host/uinput/guest_translator.h"

namespace tavi {

inline std::vector<std::string> TextsOf(const KernelEvents& events) {
  std::vector<std::string> texts;
  for (const KernelEvent& event : events) texts.push_back(KernelEventText(event).toStdString());
  return texts;
}

// A guest whose touch surface has 1280 x 720 places.
class PlayedLines : public testing::Test {
 protected:
  using Texts = std::vector<std::string>;

  // What comes of a line without its display. The line has no problem.
  Texts Play(const QString& line) {
    const Translation translation = translator_.Translate(ParseGuestLine(line));
    EXPECT_EQ(translation.problem.toStdString(), "");
    return TextsOf(translation.events);
  }

  // The problem of a line, of which nothing comes.
  std::string ProblemOf(const QString& line) {
    const Translation translation = translator_.Translate(ParseGuestLine(line));
    EXPECT_EQ(TextsOf(translation.events), Texts{});
    return translation.problem.toStdString();
  }

  GuestTranslator translator_{QSize(1280, 720)};
};

}  // namespace tavi

#endif  // TESTS_HOST_UINPUT_PLAYED_LINES_H_
