#include "host/guest/held_input.h"

#include <gtest/gtest.h>

#include "host/guest/guest_line.h"

namespace tavi {
namespace {

TEST(HeldInput, IsKeptByDisplay) {
  HeldInput held;
  held.Take(1, ParseGuestLine("KBDPR:30:1"));
  held.Take(2, ParseGuestLine("SLOTPRESS:3:3:1:1:5:6"));
  EXPECT_EQ(held.StateOf(1).held_keys, QSet<int>{30});
  EXPECT_TRUE(held.StateOf(1).contacts.isEmpty());
  EXPECT_EQ(held.StateOf(2).contacts.keys(), QList<int>{3});
  EXPECT_TRUE(held.StateOf(7).held_keys.isEmpty());
  EXPECT_EQ(held.Displays().size(), 2U);
}

TEST(HeldInput, HasALineForEachThingThatIsDown) {
  const char* const lines[] = {"SLOTPRESS:3:3:1:1:5:6", "SLOTPRESS:1:1:1:1:5:6", "KBDPR:158:1",    "KBDPR:30:1",
                               "GPDBUTTON:305:1",       "GPDBUTTON:304:1",       "LSTICKAXIS:1:0", "RSTICKAXIS:0:-1",
                               "LTRIGGERAXIS:1",        "RTRIGGERAXIS:1",        "HATX:-1",        "HATY:1",
                               "TOUCHPADLIGHTTOUCH:5:5"};
  HeldInput held;
  for (const char* line : lines) held.Take(1, ParseGuestLine(line));
  const QStringList lifts = LiftLines(held.StateOf(1));
  EXPECT_EQ(lifts.join(' ').toStdString(),
            "SLOTRELEASE:1 SLOTRELEASE:3 KBDRL:30:0 KBDRL:158:0 GPDBUTTON:304:0 GPDBUTTON:305:0 LSTICKAXIS:0:0 "
            "RSTICKAXIS:0:0 LTRIGGERAXIS:0 RTRIGGERAXIS:0 HATX:0 HATY:0 TOUCHPADRELEASE");
  for (const QString& line : lifts) held.Take(1, ParseGuestLine(line));
  EXPECT_EQ(LiftLines(held.StateOf(1)), QStringList());
}

}  // namespace
}  // namespace tavi
