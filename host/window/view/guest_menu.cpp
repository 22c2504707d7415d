#include "host/window/view/guest_menu.h"

#include <QActionGroup>

namespace tavi {

namespace {

constexpr QSize kSizes[] = {{1280, 720}, {1920, 1080}, {2400, 1080}, {720, 1280}};
constexpr int kRotations[] = {0, 90, 180, 270};
constexpr double kPixelRatios[] = {1, 1.25, 1.5, 2};

void AddChoice(QMenu* menu, QActionGroup* group, const QString& text, const QVariant& value) {
  QAction* action = group->addAction(menu->addAction(text));
  action->setData(value);
  action->setCheckable(true);
}

void Mark(const QActionGroup* group, const QVariant& value) {
  for (QAction* action : group->actions()) action->setChecked(action->data() == value);
}

}  // namespace

QString SizeText(const QSize& size) { return QStringLiteral("%1 \u00D7 %2").arg(size.width()).arg(size.height()); }

GuestMenu::GuestMenu(QWidget* parent)
    : QMenu(parent),
      sizes_(new QActionGroup(this)),
      rotations_(new QActionGroup(this)),
      pixel_ratios_(new QActionGroup(this)),
      no_background_(nullptr) {
  setToolTipsVisible(true);
  for (const QSize& size : kSizes) AddChoice(this, sizes_, SizeText(size), size);
  AddChoice(this, sizes_, QStringLiteral("As large as the view"), QSize());
  addSeparator();
  QMenu* rotation = addMenu(QStringLiteral("Rotation"));
  rotation->menuAction()->setToolTip(
      QStringLiteral("The display's rotation that the host reports; the library treats 180\u00B0 as 0\u00B0"));
  for (const int degrees : kRotations) {
    AddChoice(rotation, rotations_, QStringLiteral("%1\u00B0").arg(degrees), degrees);
  }
  QMenu* ratio = addMenu(QStringLiteral("Pixel ratio"));
  ratio->menuAction()->setToolTip(QStringLiteral(
      "How many pixels of the view the host reports for one of the display; values other than 1 move walks"));
  for (const double value : kPixelRatios) AddChoice(ratio, pixel_ratios_, QString::number(value), value);
  addSeparator();
  QAction* background = addAction(QStringLiteral("Background picture\u2026"));
  no_background_ = addAction(QStringLiteral("No background"));
  MarkBackground(false);

  connect(sizes_, &QActionGroup::triggered, this,
          [this](const QAction* action) { Q_EMIT SizeChosen(action->data().toSize()); });
  connect(rotations_, &QActionGroup::triggered, this,
          [this](const QAction* action) { Q_EMIT RotationChosen(action->data().toInt()); });
  connect(pixel_ratios_, &QActionGroup::triggered, this,
          [this](const QAction* action) { Q_EMIT PixelRatioChosen(action->data().toDouble()); });
  connect(background, &QAction::triggered, this, &GuestMenu::BackgroundWanted);
  connect(no_background_, &QAction::triggered, this, &GuestMenu::BackgroundDropped);
}

void GuestMenu::MarkSize(const QSize& size) { Mark(sizes_, size); }

void GuestMenu::MarkRotation(int degrees) { Mark(rotations_, degrees); }

void GuestMenu::MarkPixelRatio(double ratio) { Mark(pixel_ratios_, ratio); }

void GuestMenu::MarkBackground(bool has_one) { no_background_->setEnabled(has_one); }

}  // namespace tavi
