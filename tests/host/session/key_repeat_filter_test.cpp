#include "host/session/key_repeat_filter.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QKeyEvent>

#include "host/simulation/virtual_event_dispatcher.h"
#include "tests/support/application_object.h"

namespace tavi {
namespace {

// Events as text: "down 30" or "up 30", with "again" for a repeat.
class KeyRepeats : public testing::Test {
 protected:
  KeyRepeats() : clock_(InstallClock()) {}

  void Take(QEvent::Type type, quint32 scancode, ulong timestamp, bool repeat = false) {
    QKeyEvent event(type, 0, Qt::NoModifier, scancode, 1, 0, QString(), repeat);
    event.setTimestamp(timestamp);
    filter_.Take(event);
  }
  void Down(quint32 scancode, ulong timestamp) { Take(QEvent::KeyPress, scancode, timestamp); }
  void Up(quint32 scancode, ulong timestamp) { Take(QEvent::KeyRelease, scancode, timestamp); }

  std::string Passed() { return std::exchange(passed_, QStringList()).join(", ").toStdString(); }

 private:
  static VirtualEventDispatcher* InstallClock() {
    auto* clock = new VirtualEventDispatcher;
    QCoreApplication::setEventDispatcher(clock);
    return clock;
  }

 protected:
  VirtualEventDispatcher* clock_;

 private:
  ApplicationObject<QCoreApplication> application_;
  QStringList passed_;

 protected:
  KeyRepeatFilter filter_{[this](QKeyEvent* event) {
    const QString way = event->type() == QEvent::KeyPress ? QStringLiteral("down") : QStringLiteral("up");
    passed_ +=
        QStringLiteral("%1 %2%3").arg(way).arg(event->nativeScanCode()).arg(event->isAutoRepeat() ? " again" : "");
  }};
};

TEST_F(KeyRepeats, AReleaseAndPressOfOneTimeAreARepeat) {
  Down(30, 100);
  EXPECT_EQ(Passed(), "down 30");
  Up(30, 760);
  Down(30, 760);
  EXPECT_EQ(Passed(), "down 30 again");
  clock_->Advance(1000);
  EXPECT_EQ(Passed(), "");
}

TEST_F(KeyRepeats, ARealReleasePassesAMomentLater) {
  Up(30, 760);
  EXPECT_EQ(Passed(), "");
  clock_->Advance(5);
  EXPECT_EQ(Passed(), "");
  clock_->Advance(2);
  EXPECT_EQ(Passed(), "up 30");
}

TEST_F(KeyRepeats, ALaterPressOfTheKeyIsAPress) {
  Up(30, 760);
  Down(30, 761);
  EXPECT_EQ(Passed(), "up 30, down 30");
}

TEST_F(KeyRepeats, NothingOvertakesARelease) {
  Up(30, 760);
  Down(31, 760);
  EXPECT_EQ(Passed(), "up 30, down 31");
  Up(31, 800);
  Up(32, 800);
  EXPECT_EQ(Passed(), "up 31");
  filter_.Flush();
  EXPECT_EQ(Passed(), "up 32");
  filter_.Flush();
  EXPECT_EQ(Passed(), "");
}

TEST_F(KeyRepeats, WhatIsMarkedAlreadyPassesAsItIs) {
  Take(QEvent::KeyRelease, 30, 760, true);
  Take(QEvent::KeyPress, 30, 760, true);
  EXPECT_EQ(Passed(), "up 30 again, down 30 again");
}

}  // namespace
}  // namespace tavi
