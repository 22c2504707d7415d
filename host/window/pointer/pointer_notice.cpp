#include "host/window/pointer/pointer_notice.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "host/look/theme.h"
#include "host/session/live_host.h"
#include "host/window/controls/control_focus.h"
#include "host/window/pointer/pointer_capture.h"
#include "taviinputmanager/types.h"

namespace tavi {

using taviinputmanager::InputStatus;

PointerNotice::PointerNotice(WindowSystem system, const PointerCapture* capture, QAction* full_screen, QWidget* parent)
    : QFrame(parent),
      system_(system),
      capture_(capture),
      full_screen_(full_screen),
      text_(new QLabel(this)),
      offer_(new QToolButton(this)) {
  text_->setWordWrap(true);
  offer_->setDefaultAction(full_screen);
  ReachByTab(offer_);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(12, 8, 12, 8);
  layout->addWidget(text_, 1);
  layout->addWidget(offer_);
  connect(capture, &PointerCapture::ProblemChanged, this, &PointerNotice::Update);
  connect(full_screen, &QAction::toggled, this, &PointerNotice::Update);
  connect(LiveHost::GetInstance(), &LiveHost::InputStatusChanged, this, &PointerNotice::Update);
  theme::Follow(this, [this] { Update(); });
}

QString PointerNotice::Text() const { return isHidden() ? QString() : text_->text(); }

void PointerNotice::Update() {
  const bool has_view_control = LiveHost::GetInstance()->InputStatus() != static_cast<int>(InputStatus::Normal);
  const QString text = capture_->Problem().isEmpty() ? SystemText() : capture_->Problem();
  text_->setText(QStringLiteral("<span style='color:%1'>%2</span>").arg(theme::Colors().warning.name(), text));
  offer_->setVisible(system_ == WindowSystem::kXWayland && !full_screen_->isChecked());
  setVisible(has_view_control && !text.isEmpty());
}

QString PointerNotice::SystemText() const {
  if (system_ == WindowSystem::kWayland) {
    return QStringLiteral(
        "Wayland does not let this window hold the mouse: view control does not work. If the desktop has "
        "XWayland, start tavi with QT_QPA_PLATFORM=xcb and use full screen.");
  }
  if (system_ == WindowSystem::kXWayland && !full_screen_->isChecked()) {
    return QStringLiteral(
        "On a Wayland desktop the mouse can leave this window, and view control stops there. In full screen it "
        "cannot.");
  }
  return {};
}

}  // namespace tavi
