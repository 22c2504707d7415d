// Guest lines and the kernel's events for them, as texts.
#ifndef TESTS_GUEST_PLAYED_LINES_H_
#define TESTS_GUEST_PLAYED_LINES_H_

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "guest/line/guest_line.h"
#include "guest/translation/guest_translator.h"

namespace taviguest {

using Texts = std::vector<std::string>;

inline Texts TextsOf(const KernelEvents& events) {
  Texts texts;
  for (const KernelEvent& event : events) texts.push_back(KernelEventText(event));
  return texts;
}

// A guest with a touch surface of 1280 x 720.
class PlayedLines : public testing::Test {
 protected:
  explicit PlayedLines(const GuestOptions& options = {}) : translator_(options) {}

  // The events of a line without its display. The line must have no problem.
  Texts Play(std::string_view line) {
    const Translation translation = translator_.Translate(ParseGuestLine(line));
    EXPECT_EQ(translation.problem, "");
    return TextsOf(translation.events);
  }

  // The problem of a line that has no events.
  std::string ProblemOf(std::string_view line) {
    const Translation translation = translator_.Translate(ParseGuestLine(line));
    EXPECT_EQ(TextsOf(translation.events), Texts{});
    return translation.problem;
  }

  GuestTranslator translator_;
};

}  // namespace taviguest

#endif  // TESTS_GUEST_PLAYED_LINES_H_
