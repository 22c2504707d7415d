#include "host/play/play_control.h"

#include <utility>

#include "host/play/control_words.h"
#include "host/play/play_session.h"

namespace tavi {

using Verb = ControlWords::Verb;

PlayControl::PlayControl(PlaySession* session, const AppKeymaps* apps, std::function<void()> quit)
    : session_(session), apps_(apps), quit_(std::move(quit)) {}

ControlAnswer PlayControl::Do(const QString& line) {
  const ControlWords words = ParseControlWords(line);
  const QString problem = words.problem.isEmpty() ? DoWords(words) : words.problem;
  if (!problem.isEmpty()) return {false, problem};
  return {true, words.verb == Verb::kState ? session_->State() : QString()};
}

QString PlayControl::UseApp(const QString& app) {
  if (!apps_) return QStringLiteral("keymaps of apps need --keymaps");
  QString problem;
  const QString keymap = apps_->Find(app, &problem);
  if (keymap.isEmpty()) return problem;
  problem = session_->LoadKeymap(keymap);
  if (!problem.isEmpty()) return problem;
  app_ = app;
  problem = apps_->Remember(app);
  if (!problem.isEmpty()) session_->Tell(problem);  // played nevertheless
  return {};
}

QString PlayControl::DoWords(const ControlWords& words) {
  switch (words.verb) {
    case Verb::kKeymap: return session_->LoadKeymap(words.text);
    case Verb::kApp: return UseApp(words.text);
    case Verb::kReset: session_->Reset(); return {};
    case Verb::kRotation: session_->SetRotation(words.rotation); return {};
    case Verb::kSize: return session_->SetSize(words.size);
    case Verb::kText: session_->SetTextField(words.is_on); return {};
    case Verb::kPause: session_->SetPaused(true); return {};
    case Verb::kResume: session_->SetPaused(false); return {};
    case Verb::kRecord: return records_.Record(words.text, app_);
    case Verb::kReplay: return records_.Replay(words.text);
    case Verb::kStop: return records_.Stop();
    case Verb::kState: return {};
    case Verb::kQuit: quit_(); return {};
  }
  return {};
}

}  // namespace tavi
