#include "host/window/main_window.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/keymap_report.h"
#include "host/window/diagnostics_panel.h"
#include "host/window/guest_frame.h"
#include "host/window/guest_panel.h"
#include "host/window/guest_view.h"
#include "host/window/keymap_watch.h"
#include "host/window/line_log.h"
#include "host/window/overlay_marks.h"
#include "host/window/window_host.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

constexpr QSize kFirstSize(1360, 760);
constexpr QSize kGuestSizes[] = {{1280, 720}, {1920, 1080}, {2400, 1080}, {720, 1280}};
constexpr char kExampleFolder[] = "examples/keymaps";

QString SizeText(const QSize& size) { return QStringLiteral("%1 \u00D7 %2").arg(size.width()).arg(size.height()); }

// A tool button of its own takes no focus, so that the keys stay the guest's.
void AddMenuButton(QToolBar* bar, const QString& text, QMenu* menu) {
  auto* button = new QToolButton(bar);
  button->setText(text);
  button->setMenu(menu);
  button->setPopupMode(QToolButton::InstantPopup);
  button->setFocusPolicy(Qt::NoFocus);
  bar->addWidget(button);
}

QAction* AddSwitch(QToolBar* bar, const QString& text, const QString& hint, bool on) {
  QAction* action = bar->addAction(text);
  action->setToolTip(hint);
  action->setCheckable(true);
  action->setChecked(on);
  return action;
}

QAction* AddButton(QToolBar* bar, const QString& text, const QString& hint) {
  QAction* action = bar->addAction(text);
  action->setToolTip(hint);
  return action;
}

QString TitleOf(const tavikeymapmanager::LoadResult& keymap, const QString& path) {
  if (path.isEmpty()) return QStringLiteral("tavi");
  const QString name = keymap.name.isEmpty() ? QFileInfo(path).fileName() : keymap.name;
  return name + QStringLiteral(" \u2013 tavi");
}

}  // namespace

MainWindow::MainWindow()
    : view_(new GuestView),
      frame_(new GuestFrame(view_)),
      panel_(new GuestPanel(&view_->Model())),
      diagnostics_(new DiagnosticsPanel),
      log_(new LineLog),
      watch_(new KeymapWatch(this)),
      keymap_label_(new QLabel),
      size_label_(new QLabel) {
  setCentralWidget(MakeCentre());
  MakeLogDock();
  MakeToolBar();
  statusBar()->addWidget(keymap_label_, 1);
  statusBar()->addPermanentWidget(size_label_);
  resize(kFirstSize);

  WindowHost* host = WindowHost::GetInstance();
  connect(view_, &GuestView::ModelChanged, panel_, QOverload<>::of(&QWidget::update));
  connect(frame_, &GuestFrame::ViewResized, this, &MainWindow::TakeViewSize);
  connect(watch_, &KeymapWatch::Changed, this, [this] { LoadKeymap(keymap_); });
  host->Start(view_);
  SetGuestSize(host->GuestSize());
  // What a guest without any contact is sent by way of a beginning is no news.
  connect(host, &WindowHost::EntryAdded, log_, &LineLog::Add);
  view_->setFocus();
}

QWidget* MainWindow::MakeCentre() {
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(diagnostics_);
  layout->addWidget(frame_, 1);
  layout->addWidget(panel_);
  return centre;
}

void MainWindow::MakeToolBar() {
  QToolBar* bar = addToolBar(QStringLiteral("Tools"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  QAction* open = AddButton(bar, QStringLiteral("Open\u2026"), QStringLiteral("Use another keymap"));
  connect(open, &QAction::triggered, this, &MainWindow::OpenKeymap);
  AddMenuButton(bar, QStringLiteral("Guest"), MakeGuestMenu());
  bar->addSeparator();

  QAction* overlay = AddSwitch(bar, QStringLiteral("Keys"), QStringLiteral("Show the keymap over the guest"), true);
  connect(overlay, &QAction::toggled, view_, &GuestView::SetOverlayShown);
  QAction* text = AddSwitch(bar, QStringLiteral("Text field"),
                            QStringLiteral("As if the guest had a text field focused: keys are typed"), false);
  connect(text, &QAction::toggled, this, [](bool on) { WindowHost::GetInstance()->SetTextField(on); });
  bar->addAction(log_shown_);
  bar->addSeparator();

  QAction* back = AddButton(bar, QStringLiteral("Back"), QStringLiteral("Click the guest's back key"));
  connect(back, &QAction::triggered, this, [] { taviinputmanager::doBackAction(WindowHost::kDisplay); });
  QAction* release = AddButton(bar, QStringLiteral("Let go"), QStringLiteral("Lift every finger and key of the guest"));
  connect(release, &QAction::triggered, this, [] { taviinputmanager::OnResetInputStatus(true, 0); });
}

QMenu* MainWindow::MakeGuestMenu() {
  auto* menu = new QMenu(this);
  guest_sizes_ = new QActionGroup(menu);
  for (const QSize& size : kGuestSizes) guest_sizes_->addAction(menu->addAction(SizeText(size)))->setData(size);
  guest_sizes_->addAction(menu->addAction(QStringLiteral("As large as the view")))->setData(QSize());
  for (QAction* action : guest_sizes_->actions()) action->setCheckable(true);
  connect(guest_sizes_, &QActionGroup::triggered, this,
          [this](const QAction* action) { SetGuestSize(action->data().toSize()); });
  return menu;
}

void MainWindow::MakeLogDock() {
  auto* dock = new QDockWidget(QStringLiteral("Lines for the guest"), this);
  dock->setWidget(log_);
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  log_shown_ = dock->toggleViewAction();
  log_shown_->setText(QStringLiteral("Log"));
  log_shown_->setToolTip(QStringLiteral("Show the lines for the guest"));
}

void MainWindow::OpenKeymap() {
  QString folder = QFileInfo(keymap_).absolutePath();
  if (keymap_.isEmpty() && QFileInfo(QLatin1String(kExampleFolder)).isDir()) folder = QLatin1String(kExampleFolder);
  const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("Open a keymap"), folder,
                                                    QStringLiteral("Keymaps (*.yaml *.yml *.json);;All files (*)"));
  if (!path.isEmpty()) LoadKeymap(path);
  view_->setFocus();
}

void MainWindow::LoadKeymap(const QString& path) {
  keymap_ = path;
  watch_->Watch(path);
  const tavikeymapmanager::LoadResult keymap = tavikeymapmanager::ReadKeymapFile(path);
  taviinputmanager::OnLoadKeymapConfigAndInfo(path, QString(), QString(), WindowHost::kDisplay);
  view_->SetMarks(MarksOf(keymap));
  view_->SetHint(path.isEmpty()
                     ? QStringLiteral("No keymap. The left mouse button is a finger; Open\u2026 takes a keymap.")
                     : QString());
  diagnostics_->Show(keymap);
  setWindowTitle(TitleOf(keymap, path));
  keymap_label_->setText(path.isEmpty() ? QStringLiteral("No keymap")
                                        : QStringLiteral("%1 \u00B7 %2").arg(path, ItemCountText(keymap)));
}

void MainWindow::SetGuestSize(const QSize& size) {
  taviinputmanager::OnResetInputStatus(true, 0);  // what is down has its place in the display before
  guest_follows_view_ = size.isEmpty();
  if (!guest_follows_view_) WindowHost::GetInstance()->SetGuestSize(size);
  frame_->SetShape(size);
  TakeViewSize();
  for (QAction* action : guest_sizes_->actions()) action->setChecked(action->data().toSize() == size);
}

void MainWindow::TakeViewSize() {
  if (guest_follows_view_) WindowHost::GetInstance()->SetGuestSize(view_->size());
  ShowSizes();
}

void MainWindow::ShowSizes() {
  size_label_->setText(QStringLiteral("Guest %1 \u00B7 shown at %2")
                           .arg(SizeText(WindowHost::GetInstance()->GuestSize()), SizeText(view_->size())));
}

}  // namespace tavi
