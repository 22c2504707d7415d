#include "host/window/view/window_state.h"

#include "host/look/theme.h"
#include "host/session/live_host.h"
#include "host/session/mapping.h"
#include "host/session/recorder.h"
#include "host/session/replayer.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/types.h"

namespace tavi {

using taviinputmanager::InputStatus;
using taviinputmanager::RecordStatus;

namespace {

bool IsUnusable(const KeymapSource& keymap) { return keymap.LastRead().HasErrors() && !keymap.KeepsEarlierState(); }

void AddMouse(QVector<StateWord>* words) {
  switch (static_cast<InputStatus>(LiveHost::GetInstance()->InputStatus())) {
    case InputStatus::Staring: words->append({QStringLiteral("View control"), theme::Colors().view, true}); break;
    case InputStatus::Observing: words->append({QStringLiteral("Looking around"), theme::Colors().view, true}); break;
    default: break;
  }
}

void AddRecording(QVector<StateWord>* words) {
  switch (Recorder::GetInstance()->Status()) {
    case RecordStatus::Recording: words->append({QStringLiteral("Recording"), theme::Colors().error}); break;
    case RecordStatus::Paused: words->append({QStringLiteral("Recording paused"), theme::Colors().faint_text}); break;
    case RecordStatus::Stopped: break;
  }
}

void AddReplay(QVector<StateWord>* words) {
  switch (Replayer::GetInstance()->GetState()) {
    case Replayer::State::kPlaying: words->append({QStringLiteral("Replaying"), theme::Colors().macro}); break;
    case Replayer::State::kPaused: words->append({QStringLiteral("Replay paused"), theme::Colors().faint_text}); break;
    default: break;
  }
}

}  // namespace

WindowState::WindowState(const Mapping* mapping, QObject* parent) : QObject(parent), mapping_(mapping) {
  const LiveHost* host = LiveHost::GetInstance();
  connect(mapping, &Mapping::Changed, this, &WindowState::Changed);
  connect(host, &LiveHost::InputStatusChanged, this, &WindowState::Changed);
  connect(host, &LiveHost::TextFieldChanged, this, &WindowState::Changed);
  connect(Recorder::GetInstance(), &Recorder::Changed, this, &WindowState::Changed);
  connect(Replayer::GetInstance(), &Replayer::Changed, this, &WindowState::Changed);
  theme::Follow(this, [this] { Q_EMIT Changed(); });
}

void WindowState::SetPauseKey(const QString& name) {
  pause_key_ = name;
  Q_EMIT Changed();
}

void WindowState::SetEditing(bool editing) {
  is_editing_ = editing;
  Q_EMIT Changed();
}

StateWord WindowState::MappingWord() const {
  if (is_editing_) return {QStringLiteral("Editing"), theme::Colors().cast, true};
  if (mapping_->IsPaused())
    return {QStringLiteral("Mapping off (%1: on)").arg(pause_key_), theme::Colors().warning, true};
  const bool is_earlier = mapping_->Keymap().KeepsEarlierState() || mapping_->JoystickKeymap().KeepsEarlierState();
  if (is_earlier) return {QStringLiteral("Mapping from before the last change"), theme::Colors().warning};
  if (IsUnusable(mapping_->Keymap())) return {QStringLiteral("Keymap cannot be used"), theme::Colors().error, true};
  if (IsUnusable(mapping_->JoystickKeymap()))
    return {QStringLiteral("Gamepad keymap cannot be used"), theme::Colors().error, true};
  const bool has_keymap = !mapping_->Keymap().Path().isEmpty() || !mapping_->JoystickKeymap().Path().isEmpty();
  if (!has_keymap) return {QStringLiteral("No keymap"), theme::Colors().faint_text};
  return {QStringLiteral("Mapping on"), theme::Colors().walk};
}

QVector<StateWord> WindowState::Words() const {
  QVector<StateWord> words{MappingWord()};
  AddMouse(&words);
  if (LiveHost::GetInstance()->HasTextField()) words.append({QStringLiteral("Text field"), theme::Colors().tap, true});
  AddRecording(&words);
  AddReplay(&words);
  return words;
}

}  // namespace tavi
