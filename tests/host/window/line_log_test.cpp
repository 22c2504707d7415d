#include "host/window/events/line_log.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolButton>

#include "guest/line/timeline_line.h"
#include "host/simulation/platform_events.h"
#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

using Source = TimelineEntry::Source;

class LineLogTest : public testing::Test {
 protected:
  LineLogTest() : clock_(InstallClock()), log_(std::make_unique<LineLog>()) {}

  void Push(const QString& name) {
    for (QToolButton* button : log_->findChildren<QToolButton*>()) {
      if (button->text() == name) button->click();
    }
  }
  std::string Shown() {
    clock_->Advance(100);
    return log_->Text().toStdString();
  }

  const PlatformEvents events_;
  VirtualEventDispatcher* clock_;

 private:
  VirtualEventDispatcher* InstallClock() const {
    auto* clock = new VirtualEventDispatcher;
    events_.DeliverBy(clock);
    QCoreApplication::setEventDispatcher(clock);
    return clock;
  }

  ApplicationObject<QApplication> application_;

 protected:
  std::unique_ptr<LineLog> log_;
};

// The times' column is nine characters wide.
TEST_F(LineLogTest, ListsLinesAndTextsWithTheirTimes) {
  log_->Add({8, Source::kLine, QStringLiteral("1:KBDPR:158:1")});
  log_->Add({1234, Source::kText, QStringLiteral("TEXT:a\nb")});
  EXPECT_EQ(Shown(),
            "     8ms 1:KBDPR:158:1\n"
            "  1234ms text TEXT:a\u21B5"
            "b");
}

TEST_F(LineLogTest, ListsCallsWhenTheyAreWanted) {
  log_->Add({1, Source::kCallback, QStringLiteral("mapped 1")});
  EXPECT_EQ(Shown(), "");
  Push(QStringLiteral("Calls"));
  log_->Add({2, Source::kCallback, QStringLiteral("mapped 1")});
  EXPECT_EQ(Shown(), "     2ms ! mapped 1");
}

TEST_F(LineLogTest, LeavesOutWhatComesDuringAPause) {
  Push(QStringLiteral("Pause"));
  log_->Add({1, Source::kLine, QStringLiteral("1:SLOTRELEASEALL")});
  Push(QStringLiteral("Pause"));
  log_->Add({2, Source::kLine, QStringLiteral("1:KBDRL:30:0")});
  EXPECT_EQ(Shown(), "     2ms 1:KBDRL:30:0");
  Push(QStringLiteral("Clear"));
  EXPECT_EQ(Shown(), "");
}

// 200 lines are more than fit, at either height.
TEST_F(LineLogTest, FollowsTheEndWhenItsSizeChanges) {
  log_->resize(500, 600);
  log_->show();
  for (int i = 0; i < 200; ++i) log_->Add({i, Source::kLine, QStringLiteral("1:KBDPR:158:1")});
  Shown();
  const QScrollBar* bar = log_->findChild<QPlainTextEdit*>()->verticalScrollBar();
  ASSERT_EQ(bar->value(), bar->maximum());
  for (const int height : {200, 500, 300}) {
    log_->resize(500, height);
    clock_->Settle();
    EXPECT_EQ(bar->value(), bar->maximum()) << height;
    log_->Add({200, Source::kLine, QStringLiteral("1:KBDRL:158:0")});
    Shown();
    EXPECT_EQ(bar->value(), bar->maximum()) << height;
  }
}

TEST_F(LineLogTest, StaysWhereSomeoneReads) {
  log_->resize(500, 300);
  log_->show();
  for (int i = 0; i < 200; ++i) log_->Add({i, Source::kLine, QStringLiteral("1:KBDPR:158:1")});
  Shown();
  QScrollBar* bar = log_->findChild<QPlainTextEdit*>()->verticalScrollBar();
  bar->setValue(20);
  log_->resize(500, 200);
  log_->Add({200, Source::kLine, QStringLiteral("1:KBDRL:158:0")});
  Shown();
  EXPECT_EQ(bar->value(), 20);
}

TEST_F(LineLogTest, WhatIsCopiedIsATimelineThatCanBePlayed) {
  log_->Add({8, Source::kLine, QStringLiteral("1:KBDPR:158:1")});
  log_->Add({1234, Source::kText, QStringLiteral("TEXT:a\nb")});
  Shown();
  Push(QStringLiteral("Copy"));
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), "8ms 1:KBDPR:158:1\n1234ms text TEXT:a\\nb\n");
  const auto line = taviguest::ReadTimelineLine("8ms 1:KBDPR:158:1");
  ASSERT_TRUE(line);
  EXPECT_EQ(line->ms, 8);
  Push(QStringLiteral("Clear"));
  Push(QStringLiteral("Copy"));
  EXPECT_EQ(QApplication::clipboard()->text(), QString());
}

}  // namespace
}  // namespace tavi
