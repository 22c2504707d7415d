#include "guest/program/guest_program.h"

#include <cerrno>
#include <chrono>
#include <cstring>
#include <fcntl.h>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include "guest/device/device_place.h"
#include "guest/device/device_set.h"
#include "guest/guest_player.h"
#include "guest/program/exit_status.h"
#include "guest/program/listener.h"
#include "guest/program/output.h"
#include "guest/program/signals.h"

namespace taviguest {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kForEver = -1;
constexpr char kBusy[] = "busy: another front end is connected\n";

enum class ReadResult { kMore, kEnd, kFailed };

// The running program. It has one thread, which waits in poll() or for the time of a timeline's line.
class Program {
 public:
  Program(const std::string& name, const ProgramOptions& options)
      : options_(options), output_(name), devices_(options.guest) {}

  int Run() {
    if (!OpenDevices()) return kExitUsage;
    const int status = output_.Finish(options_.listen ? Serve() : PlayInput());
    return signals_.Wait(0) != 0 ? ExitStatusOfSignal(signals_.Wait(0)) : status;
  }

 private:
  // The devices are created before a named pipe has a writer or a socket a front end, so that their readers can find
  // them first.
  bool OpenDevices() {
    if (options_.is_dry_run) return true;
    const std::string error = devices_.Open();
    if (!error.empty()) {
      output_.Tell(error + ". --dry-run does without.");
      return false;
    }
    for (const DevicePlace& place : devices_.Places()) PrintPlace(place);
    devices_.SetWatcher([this](const DevicePlace& place) { PrintPlace(place); });
    output_.Flush();
    return true;
  }

  void PrintPlace(const DevicePlace& place) { output_.Print(place.word + ' ' + place.node + '\n'); }

  // Plays one file from its beginning to its end.
  int PlayInput() {
    const bool is_named = !options_.input.empty();
    const int file = is_named ? open(options_.input.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK) : STDIN_FILENO;
    const std::string name = is_named ? options_.input : "<stdin>";
    if (file < 0) {
      TellUnreadable(name);
      return kExitUsage;
    }
    const ReadResult result = PlayAll(file);
    if (result == ReadResult::kFailed) TellUnreadable(name);
    if (is_named) close(file);
    return result == ReadResult::kFailed || had_problem_ ? kExitProblem : kExitDone;
  }

  static void TellUnreadable(const std::string& file) {
    Output::TellOf(file, std::string("cannot be read: ") + std::strerror(errno));
  }

  ReadResult PlayAll(int file) {
    Start();
    ReadResult result = ReadResult::kMore;
    while (result == ReadResult::kMore && WaitFor(file, -1)) result = ReadSome(file);
    const int error = errno;
    if (result == ReadResult::kEnd) PlayLast();
    Finish();
    errno = error;
    return result;
  }

  // Serves one front end after the other, until a signal arrives.
  int Serve() {
    Listener listener;
    const std::string error = listener.Open(*options_.listen);
    if (!error.empty()) {
      output_.Tell(error);
      return kExitUsage;
    }
    output_.Print("listening on " + listener.place() + '\n');
    output_.Flush();
    int connection = -1;
    while (WaitFor(connection, listener.file())) {
      if (connection >= 0 && IsReadable(connection) && ReadSome(connection) != ReadResult::kMore) Leave(&connection);
      if (IsReadable(listener.file())) Admit(listener.Accept(), &connection);
    }
    if (connection >= 0) Leave(&connection);
    return kExitDone;
  }

  // A second front end is refused instead of queued: its lines would be outdated when they are played.
  void Admit(int newcomer, int* connection) {
    if (newcomer < 0) return;
    if (*connection < 0) {
      *connection = newcomer;
      return Start();
    }
    send(newcomer, kBusy, sizeof(kBusy) - 1, MSG_NOSIGNAL);
    close(newcomer);
  }

  // A rest without a line end is not a line: it may have been truncated anywhere.
  void Leave(int* connection) {
    close(*connection);
    *connection = -1;
    Finish();
  }

  // A stream begins: nothing is down, and the time of a timeline is 0.
  void Start() {
    stream_ = GuestStream();
    player_.emplace(options_.guest, MakeOutlets());
    start_ = Clock::now();
  }

  // A dry run of a file only prints its lines; front ends and signals may end in the middle of a gesture.
  void Finish() {
    if (!options_.is_dry_run || options_.listen || signals_.Wait(0) != 0) player_->LiftAll();
    output_.Flush();
    had_problem_ = had_problem_ || player_->had_problem();
  }

  GuestPlayer::Outlets MakeOutlets() {
    GuestPlayer::Outlets outlets;
    outlets.problem = [this](const std::string& text) { output_.Tell(text); };
    outlets.events = [this](const KernelEvents& events) {
      return options_.is_dry_run ? PrintEvents(events) : devices_.Write(events);
    };
    return outlets;
  }

  std::string PrintEvents(const KernelEvents& events) {
    for (const KernelEvent& event : events) output_.Print(KernelEventText(event) + '\n');
    return {};
  }

  // Waits until one of the two descriptors is readable, -1 being none; false if a signal arrived.
  bool WaitFor(int file, int other) {
    pollfd polled[] = {{signals_.file(), POLLIN, 0}, {file, POLLIN, 0}, {other, POLLIN, 0}};
    while (signals_.Wait(0) == 0) {
      if (poll(polled, std::size(polled), kForEver) > 0 && polled[0].revents == 0) return true;
    }
    return false;
  }

  static bool IsReadable(int file) {
    pollfd polled{file, POLLIN, 0};
    return poll(&polled, 1, 0) > 0;
  }

  // Each line is played as soon as it is complete, so the read must not wait for more.
  ReadResult ReadSome(int file) {
    char buffer[4096];
    const ssize_t count = read(file, buffer, sizeof(buffer));
    if (count == 0) return ReadResult::kEnd;
    if (count < 0) return errno == EINTR || errno == EAGAIN ? ReadResult::kMore : ReadResult::kFailed;
    stream_.Append({buffer, static_cast<size_t>(count)});
    while (const auto line = stream_.Next()) PlayLine(*line);
    output_.Flush();
    return ReadResult::kMore;
  }

  void PlayLast() {
    if (const auto line = stream_.Last()) PlayLine(*line);
  }

  void PlayLine(const SentLine& line) {
    if (!options_.is_timeline) return player_->Play(line);
    player_->PlayTimed(line, [this](int ms) { return options_.is_dry_run || WaitUntil(ms); });
  }

  // False if a signal arrives first.
  bool WaitUntil(int ms) {
    const auto due = start_ + std::chrono::milliseconds(ms);
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(due - Clock::now()).count();
    return signals_.Wait(left > 0 ? static_cast<int>(left) : 0) == 0;
  }

  const ProgramOptions options_;
  Output output_;
  Signals signals_;
  DeviceSet devices_;
  GuestStream stream_;
  std::optional<GuestPlayer> player_;
  Clock::time_point start_;
  bool had_problem_ = false;
};

}  // namespace

int RunGuestProgram(const std::string& name, const ProgramOptions& options) { return Program(name, options).Run(); }

}  // namespace taviguest
