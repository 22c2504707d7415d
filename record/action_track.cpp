#include "record/action_track.h"

#include <utility>

#include "core/clock.h"
#include "core/numbers.h"

namespace taviinputmanager {

ActionTrack::ActionTrack() : last_time_(Clock::NowMs()) {}

ActionTrack::~ActionTrack() { qDeleteAll(actions_); }

void ActionTrack::Start() {
  last_time_ = Clock::NowMs();
  Clear();
}

void ActionTrack::Add(RecordAction action) {
  const qint64 now = Clock::NowMs();
  auto* added = new RecordAction(std::move(action));
  added->timing = LowDistance(last_time_, now);
  last_time_ = now;
  for (QString* text : {&added->type, &added->data, &added->extra1, &added->extra2}) *text = texts_.Of(*text);
  actions_.append(added);
}

void ActionTrack::Clear() {
  qDeleteAll(actions_);
  actions_.clear();
}

void ActionTrack::SkipSince(qint64 pause_time) { last_time_ = Clock::NowMs() - LowDistance(last_time_, pause_time); }

}  // namespace taviinputmanager
