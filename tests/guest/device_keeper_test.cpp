// The keeper lifts what is down however its program ends. Pipes replace the devices here: a device would get what is
// written to them. KernelGuest tests the same on a real kernel.
#include "guest/device/device_keeper.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace taviguest {
namespace {

class KeptPipe : public testing::Test {
 protected:
  KeptPipe() { EXPECT_EQ(pipe2(ends_, O_CLOEXEC), 0); }
  ~KeptPipe() override { close(ends_[0]); }

  static std::vector<input_event> Rest(int value) {
    input_event event{};
    event.type = EV_KEY;
    event.code = BTN_TOUCH;
    event.value = value;
    return {event, event};
  }

  void CloseOwnEnd() { close(ends_[1]); }

  // What is written until the pipe's other end is closed everywhere; waits at most ten seconds.
  std::vector<input_event> ReadToEnd() {
    std::vector<input_event> events;
    input_event event{};
    pollfd polled{ends_[0], POLLIN, 0};
    while (poll(&polled, 1, 10'000) > 0 && read(ends_[0], &event, sizeof(event)) == sizeof(event)) {
      events.push_back(event);
    }
    return events;
  }

  bool IsEmpty() const {
    pollfd polled{ends_[0], POLLIN, 0};
    return poll(&polled, 1, 0) == 0;
  }

  int ends_[2] = {-1, -1};
};

TEST_F(KeptPipe, IsLiftedWhenTheProgramLetsGo) {
  {
    DeviceKeeper keeper;
    ASSERT_EQ(keeper.Start(), "");
    ASSERT_EQ(keeper.Keep(ends_[1], Rest(7)), "");
    CloseOwnEnd();
    EXPECT_TRUE(IsEmpty());
  }
  const std::vector<input_event> events = ReadToEnd();
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[0].code, BTN_TOUCH);
  EXPECT_EQ(events[1].value, 7);
}

TEST_F(KeptPipe, IsLiftedWhenTheProgramIsKilled) {
  const pid_t program = fork();
  if (program == 0) {
    DeviceKeeper keeper;
    keeper.Start();
    keeper.Keep(ends_[1], Rest(0));
    keeper.Keep(ends_[1], Rest(1));
    raise(SIGKILL);
  }
  CloseOwnEnd();
  int status = 0;
  ASSERT_EQ(waitpid(program, &status, 0), program);
  ASSERT_TRUE(WIFSIGNALED(status));
  const std::vector<input_event> events = ReadToEnd();
  ASSERT_EQ(events.size(), 4u);
  EXPECT_EQ(events[0].value, 0);
  EXPECT_EQ(events[3].value, 1);
}

// The keys that end a program in a terminal send their signal to all its processes.
TEST_F(KeptPipe, TheKeeperOutlivesWhatEndsItsProgram) {
  DeviceKeeper keeper;
  ASSERT_EQ(keeper.Start(), "");
  ASSERT_EQ(keeper.Keep(ends_[1], Rest(0)), "");
  CloseOwnEnd();
  for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) EXPECT_EQ(kill(keeper.process(), number), 0);
  EXPECT_EQ(waitpid(keeper.process(), nullptr, WNOHANG), 0);  // it is running
  EXPECT_TRUE(IsEmpty());
}

// If the keeper kept a pipe of the program open, its reader would never see the end.
TEST_F(KeptPipe, TheKeeperHoldsNothingElseOfItsProgram) {
  DeviceKeeper keeper;
  ASSERT_EQ(keeper.Start(), "");
  CloseOwnEnd();
  pollfd polled{ends_[0], POLLIN, 0};
  ASSERT_EQ(poll(&polled, 1, 10'000), 1);
  EXPECT_TRUE(polled.revents & POLLHUP);
}

TEST_F(KeptPipe, AKeeperThatWasNotStartedTakesNothing) {
  EXPECT_EQ(DeviceKeeper().Keep(ends_[1], Rest(0)), "the keeper of the devices takes none: Bad file descriptor");
  CloseOwnEnd();
}

}  // namespace
}  // namespace taviguest
