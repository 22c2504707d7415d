#include "host/uinput/guest_player.h"

#include "host/guest/guest_line.h"
#include "host/uinput/timeline_line.h"

namespace tavi {

void GuestPlayer::Play(const SentLine& line) {
  if (line.is_cut) {
    const QString problem = QStringLiteral("passed over, longer than %1 bytes").arg(GuestStream::kMostLineBytes);
    return Tell(problem, line.line + QStringLiteral("..."));
  }
  if (settings_.is_timeline) {
    PlayTimed(line);
  } else {
    PlayNow(line);
  }
}

void GuestPlayer::PlayTimed(const SentLine& line) {
  const std::optional<TimedLine> timed = ReadTimelineLine(line.line);
  if (!timed) return Tell(QStringLiteral("not a line of a timeline"), line.line);
  if (timed->is_call) return;
  outlets_.wait(timed->ms);
  PlayNow(timed->sent);
}

void GuestPlayer::PlayNow(const SentLine& line) {
  const AddressedLine addressed = line.is_text ? AddressedLine{0, line.line} : SplitDisplay(line.line);
  const bool is_ours = line.is_text || addressed.display == settings_.display.value_or(addressed.display);
  const GuestLine parsed = ParseGuestLine(addressed.line);
  if (parsed.kind != GuestLine::Kind::kUnknown && !is_ours) return;
  const Translation translation = translator_.Translate(parsed);
  if (!translation.problem.isEmpty()) Tell(translation.problem, line.line);
  const QString failure = outlets_.events(translation.events);
  if (!failure.isEmpty()) Tell(failure, line.line);
}

void GuestPlayer::Tell(const QString& problem, const QString& line) {
  had_problem_ = true;
  outlets_.problem(QStringLiteral("%1: %2").arg(problem, line));
}

}  // namespace tavi
