#include "guest/guest_player.h"

#include "guest/line/guest_line.h"
#include "guest/line/timeline_line.h"

namespace taviguest {

void GuestPlayer::Play(const SentLine& line) {
  if (!IsWhole(line)) return;
  const AddressedLine addressed = line.is_text ? AddressedLine{0, line.line} : SplitDisplay(line.line);
  const bool is_ours = line.is_text || addressed.display == display_.value_or(addressed.display);
  const GuestLine parsed = ParseGuestLine(addressed.line);
  if (parsed.kind != GuestLine::Kind::kUnknown && !is_ours) return;
  const Translation translation = translator_.Translate(parsed);
  if (!translation.problem.empty()) Tell(translation.problem, line.line);
  const std::string failure = outlets_.events(translation.events);
  if (!failure.empty()) Tell(failure, line.line);
}

void GuestPlayer::PlayTimed(const SentLine& line, const std::function<bool(int ms)>& wait) {
  if (!IsWhole(line)) return;
  const std::optional<TimedLine> timed = ReadTimelineLine(line.line);
  if (!timed) return Tell("not a line of a timeline", line.line);
  if (!timed->is_call && wait(timed->ms)) Play(timed->sent);
}

void GuestPlayer::LiftAll() {
  const std::string failure = outlets_.events(translator_.LiftAll());
  if (!failure.empty()) Tell(failure, "what is down cannot be lifted");
}

bool GuestPlayer::IsWhole(const SentLine& line) {
  if (!line.is_cut) return true;
  Tell("ignored, longer than " + std::to_string(GuestStream::kMostLineBytes) + " bytes", line.line + "...");
  return false;
}

void GuestPlayer::Tell(const std::string& problem, std::string_view line) {
  had_problem_ = true;
  outlets_.problem(problem + ": " + std::string(line));
}

}  // namespace taviguest
