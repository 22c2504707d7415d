#include "host/window/records/replay_dock.h"

#include <QAction>
#include <QCloseEvent>

#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/session/replayer.h"
#include "host/window/view/guest_frame.h"
#include "host/window/view/guest_screen.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

constexpr int kLeastHeight = 180;
constexpr int kFirstReplaySlot = 18;  // slots from here on are those of replays, macros and pinches by key

// The library's state does not change: later lines about these keys and contacts are sent as before.
void LiftKeys(const GuestState& state, int display) {
  const QSet<int> codes = state.held_keys;  // a copy: each line removes one
  for (const int code : codes) {
    taviinputmanager::OnInputRawEventData(QStringLiteral("KBDRL:%1:0\n").arg(code), display);
  }
}

bool IsUnderWay() {
  const Replayer::State state = Replayer::GetInstance()->GetState();
  return state == Replayer::State::kPlaying || state == Replayer::State::kPaused;
}

}  // namespace

ReplayDock::ReplayDock(const GuestScreen* player, QWidget* parent)
    : QDockWidget(QStringLiteral("Replays"), parent),
      player_(player),
      own_(new GuestScreen(LiveHost::kReplayDisplay, GuestScreen::Texts::kLeft)),
      frame_(new GuestFrame(own_)) {
  setObjectName(QStringLiteral("replays"));
  setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  frame_->setMinimumHeight(kLeastHeight);
  setWidget(frame_);
  toggleViewAction()->setVisible(false);  // the switch shows and hides it
}

void ReplayDock::SetInUse(bool in_use) {
  InputPort::GetInstance()->LetGoBy([this, in_use] { in_use ? LiftOnPlayers() : LiftOnOwn(); });
  taviinputmanager::UpdateReplayDisplayId(in_use ? LiveHost::kReplayDisplay : LiveHost::kDisplay);
  setVisible(in_use);
}

// Everything down on that display belongs to a replay.
void ReplayDock::LiftOnOwn() const {
  const GuestState& state = own_->Model().state();
  if (!state.contacts.isEmpty()) {
    taviinputmanager::OnInputRawEventData(QStringLiteral("SLOTRELEASEALL\n"), LiveHost::kReplayDisplay);
  }
  LiftKeys(state, LiveHost::kReplayDisplay);
}

// This also releases keys that the player holds and contacts of macros: they cannot be distinguished.
void ReplayDock::LiftOnPlayers() const {
  if (!IsUnderWay()) return;
  const GuestState& state = player_->Model().state();
  const QList<int> slots = state.contacts.keys();  // a copy: each line removes one
  for (const int slot : slots) {
    if (slot < kFirstReplaySlot) continue;
    taviinputmanager::OnInputRawEventData(QStringLiteral("SLOTRELEASE:%1\n").arg(slot), LiveHost::kDisplay);
  }
  LiftKeys(state, LiveHost::kDisplay);
}

void ReplayDock::closeEvent(QCloseEvent* event) {
  QDockWidget::closeEvent(event);
  Q_EMIT Closed();
}

}  // namespace tavi
