#include "host/window/mirror_label.h"

#include "host/mirror/mirror_server.h"
#include "host/mirror/mirror_targets.h"
#include "host/session/live_host.h"

namespace tavi {

namespace {

QString SourcesText(int count, const QString& name) {
  if (count == 0) return QStringLiteral("No instance sends lines to %1 anymore").arg(name);
  if (count == 1) return QStringLiteral("One instance sends its lines to %1").arg(name);
  return QStringLiteral("%1 instances send their lines to %2").arg(count).arg(name);
}

}  // namespace

MirrorLabel::MirrorLabel(QWidget* parent) : QLabel(parent) {
  setToolTip(QStringLiteral("The instances that get the same lines, and how many send theirs here"));
  const MirrorTargets* targets = MirrorTargets::GetInstance();
  connect(targets, &MirrorTargets::Reached, this, [this](const QString& name) {
    ShowMirrors();
    Q_EMIT Message(QStringLiteral("Lines also go to %1").arg(name), false);
  });
  connect(targets, &MirrorTargets::Lost, this, [this](const QString& name, const QString& problem) {
    ShowMirrors();
    Q_EMIT Message(QStringLiteral("Lines no longer go to %1: %2").arg(name, problem), true);
  });
  connect(targets, &MirrorTargets::TooLong, this, [this](int characters) {
    Q_EMIT Message(QStringLiteral("A text of %1 characters is too long for other instances").arg(characters), true);
  });
  ShowMirrors();
}

MirrorLabel::~MirrorLabel() = default;

QString MirrorLabel::ListenAs(const QString& name) {
  server_ = std::make_unique<MirrorServer>(LiveHost::kDisplay);
  connect(server_.get(), &MirrorServer::SourcesChanged, this, [this, name](int count) {
    sources_ = count;
    ShowMirrors();
    Q_EMIT Message(SourcesText(count, name), false);
  });
  const QString problem = server_->Listen(name);
  if (problem.isEmpty()) listens_as_ = name;
  ShowMirrors();
  return problem;
}

void MirrorLabel::MirrorTo(const QStringList& names) {
  for (const QString& name : names) MirrorTargets::GetInstance()->Add(name);
  ShowMirrors();
}

void MirrorLabel::ShowMirrors() {
  QStringList texts;
  const QStringList targets = MirrorTargets::GetInstance()->Names();
  if (!targets.isEmpty()) texts += QStringLiteral("Sends to ") + targets.join(QStringLiteral(", "));
  if (!listens_as_.isEmpty()) texts += QStringLiteral("Listens as %1 (%2)").arg(listens_as_).arg(sources_);
  setText(texts.join(QStringLiteral(" \u00B7 ")));
  setVisible(!texts.isEmpty());
  Q_EMIT Changed();
}

QString MirrorLabel::TitlePart() const {
  QStringList parts;
  if (!listens_as_.isEmpty()) parts += listens_as_;
  const QStringList targets = MirrorTargets::GetInstance()->Names();
  if (!targets.isEmpty()) parts += QStringLiteral("to ") + targets.join(QStringLiteral(", "));
  return parts.join(QStringLiteral(" "));
}

}  // namespace tavi
