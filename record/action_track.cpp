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

void ActionTrack::Add(RecordAction action) { Add(std::make_unique<RecordAction>(std::move(action))); }

void ActionTrack::Add(std::unique_ptr<RecordAction> action) {
  const qint64 now = Clock::NowMs();
  action->timing = LowDistance(last_time_, now);
  last_time_ = now;
  for (QString* text : {&action->type, &action->data, &action->extra1, &action->extra2}) texts_.Share(text);
  actions_.append(action.get());
  action.release();
}

void ActionTrack::Clear() {
  qDeleteAll(actions_);
  actions_.clear();
}

void ActionTrack::SkipSince(qint64 pause_time) { last_time_ = Clock::NowMs() - LowDistance(last_time_, pause_time); }

}  // namespace taviinputmanager
