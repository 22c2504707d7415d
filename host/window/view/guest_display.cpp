#include "host/window/view/guest_display.h"

#include <QLabel>

#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/window/controls/question.h"
#include "host/window/view/guest_frame.h"
#include "host/window/view/guest_menu.h"
#include "host/window/view/guest_view.h"

namespace tavi {

GuestDisplay::GuestDisplay(GuestView* view, GuestFrame* frame, GuestFrame* replay_frame, QWidget* window)
    : QObject(window),
      view_(view),
      frame_(frame),
      replay_frame_(replay_frame),
      window_(window),
      menu_(new GuestMenu(window)),
      label_(new QLabel(window)) {
  menu_->MarkRotation(0);
  menu_->MarkPixelRatio(1);
  connect(menu_, &GuestMenu::SizeChosen, this, &GuestDisplay::SetSize);
  connect(menu_, &GuestMenu::RotationChosen, this, &GuestDisplay::SetRotation);
  connect(menu_, &GuestMenu::PixelRatioChosen, this, &GuestDisplay::SetPixelRatio);
  connect(menu_, &GuestMenu::BackgroundWanted, this, &GuestDisplay::OpenBackground);
  connect(menu_, &GuestMenu::BackgroundDropped, this, [this] { SetBackground(QString()); });
  connect(frame_, &GuestFrame::ViewResized, this, &GuestDisplay::TakeViewSize);
}

void GuestDisplay::SetSize(const QSize& size) {
  follows_view_ = size.isEmpty();
  if (!follows_view_) LiveHost::GetInstance()->SetGuestSize(size);
  menu_->MarkSize(size);
  Shape();
}

void GuestDisplay::SetRotation(int degrees) {
  if (degrees == LiveHost::GetInstance()->Geometry().rotation) return;
  LiveHost::GetInstance()->SetRotation(degrees);
  menu_->MarkRotation(degrees);
  Shape();
}

void GuestDisplay::SetPixelRatio(double ratio) {
  if (ratio == LiveHost::GetInstance()->PixelRatio()) return;
  LiveHost::GetInstance()->SetPixelRatio(ratio);
  menu_->MarkPixelRatio(ratio);
  Shape();
}

void GuestDisplay::Shape() {
  InputPort::GetInstance()->LetGo();  // positions of what is down refer to the previous display
  const QSize display = LiveHost::GetInstance()->Geometry().DisplaySize();
  for (GuestFrame* frame : {frame_, replay_frame_}) frame->SetShape(follows_view_ ? QSize() : display);
  TakeViewSize();
  TellShapeOfBackground();
}

void GuestDisplay::TakeViewSize() {
  LiveHost* host = LiveHost::GetInstance();
  if (follows_view_) host->SetGuestSize(host->Geometry().IsTurned() ? view_->size().transposed() : view_->size());
  ShowSizes();
}

void GuestDisplay::ShowSizes() {
  const LiveHost* host = LiveHost::GetInstance();
  const GuestGeometry guest = host->Geometry();
  QString text = QStringLiteral("Guest ") + SizeText(guest.DisplaySize());
  if (guest.rotation != 0) text += QStringLiteral(" at %1\u00B0").arg(guest.rotation);
  if (host->PixelRatio() != 1) text += QStringLiteral(" \u00B7 pixel ratio %1").arg(host->PixelRatio());
  label_->setText(text + QStringLiteral(" \u00B7 shown at ") + SizeText(view_->size()));
  label_->setToolTip(QStringLiteral("Touch surface %1, view as reported to the library %2")
                         .arg(SizeText(guest.touch_surface), SizeText(host->ViewSize())));
}

QString GuestDisplay::SetBackground(const QString& file) {
  if (file.isEmpty()) {
    background_.Clear();
  } else {
    const QString problem = background_.Read(file);
    if (!problem.isEmpty()) return problem;
  }
  background_file_ = file;
  view_->SetBackground(background_);
  menu_->MarkBackground(!background_.IsEmpty());
  TellShapeOfBackground();
  return {};
}

void GuestDisplay::TellShapeOfBackground() {
  const QString note = background_.ShapeNote(LiveHost::GetInstance()->Geometry().DisplaySize());
  if (!note.isEmpty()) Q_EMIT Message(note, false);
}

void GuestDisplay::OpenBackground() {
  const QString file = AskForFile(window_, QStringLiteral("Open a picture of the guest's screen"), QString(),
                                  QStringLiteral("Pictures (*.png *.jpg *.jpeg);;All files (*)"));
  Q_EMIT DialogClosed();
  if (file.isEmpty()) return;
  const QString problem = SetBackground(file);
  if (!problem.isEmpty()) Q_EMIT Message(problem, true);
}

}  // namespace tavi
