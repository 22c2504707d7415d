#include "host/window/main_window.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/keymap_report.h"
#include "host/window/diagnostics_panel.h"
#include "host/window/gamepad_picture.h"
#include "host/window/gamepad_poll.h"
#include "host/window/guest_frame.h"
#include "host/window/guest_panel.h"
#include "host/window/guest_screen.h"
#include "host/window/guest_view.h"
#include "host/window/keymap_editor.h"
#include "host/window/keymap_watch.h"
#include "host/window/line_log.h"
#include "host/window/mirror_server.h"
#include "host/window/mirror_targets.h"
#include "host/window/record_bar.h"
#include "host/window/recorder.h"
#include "host/window/window_host.h"
#include "keymap/keywords.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

constexpr QSize kFirstSize(1360, 760);
constexpr int kLabelGap = 16;  // in the status bar
constexpr QSize kGuestSizes[] = {{1280, 720}, {1920, 1080}, {2400, 1080}, {720, 1280}};
constexpr int kReplayViewHeight = 180;
constexpr int kMessageMs = 8000;
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

QString TitleOf(const QString& name, const QString& path) {
  if (path.isEmpty()) return QStringLiteral("tavi");
  return (name.isEmpty() ? QFileInfo(path).fileName() : name) + QStringLiteral(" \u2013 tavi");
}

QString PadsText(const Gamepads& pads) {
  if (!GamepadPoll::IsSupported()) return QStringLiteral("Built without gamepads");
  if (pads.Count() == 0) return QStringLiteral("No gamepad");
  return pads.Count() == 1 ? pads.LastUsedName() : QStringLiteral("%1 gamepads").arg(pads.Count());
}

}  // namespace

MainWindow::MainWindow()
    : view_(new GuestView),
      frame_(new GuestFrame(view_)),
      panel_(new GuestPanel(&view_->Model())),
      keymap_{{}, {}, {}, new DiagnosticsPanel(QStringLiteral("This keymap")), new KeymapWatch(this)},
      joystick_keymap_{
          {}, {}, {}, new DiagnosticsPanel(QStringLiteral("The keymap of gamepads")), new KeymapWatch(this)},
      log_(new LineLog),
      keymap_label_(new QLabel),
      pad_label_(new QLabel),
      size_label_(new QLabel),
      pads_([this](QEvent* event) {
        if (!editor_->TakePad(event)) taviinputmanager::OnJoystickEvent(event);
      }) {
  setCentralWidget(MakeCentre());
  MakeLogDock();
  MakeReplayDock();
  MakeEditor();
  MakeToolBar();
  editor_->AddBar();
  MakeRecordBar();
  statusBar()->addWidget(keymap_label_, 1);
  pad_label_->setContentsMargins(0, 0, kLabelGap, 0);
  statusBar()->addPermanentWidget(pad_label_);
  statusBar()->addPermanentWidget(size_label_);
  resize(kFirstSize);

  WindowHost* host = WindowHost::GetInstance();
  connect(view_, &GuestView::ModelChanged, panel_, QOverload<>::of(&QWidget::update));
  connect(frame_, &GuestFrame::ViewResized, this, &MainWindow::TakeViewSize);
  connect(view_, &GuestView::Composing, panel_, &GuestPanel::SetPreedit);
  connect(keymap_.watch, &KeymapWatch::Changed, this, [this] {
    if (!editor_->TakeFileChange()) LoadKeymap(keymap_.path);
  });
  connect(joystick_keymap_.watch, &KeymapWatch::Changed, this, [this] { LoadJoystickKeymap(joystick_keymap_.path); });
  connect(&pads_, &Gamepads::Changed, this, &MainWindow::ShowPads);
  ShowPads();
  host->Start(view_);
  LoadJoystickKeymap(QString());
  SetGuestSize(host->GuestSize());
  // What a guest without any contact is sent by way of a beginning is no news.
  connect(host, &WindowHost::EntryAdded, log_, &LineLog::Add);
  view_->setFocus();
}

MainWindow::~MainWindow() {
  // The dock tells of its end when this is no main window any more.
  disconnect(replay_dock_, nullptr, nullptr, nullptr);
}

QWidget* MainWindow::MakeCentre() {
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(keymap_.diagnostics);
  layout->addWidget(joystick_keymap_.diagnostics);
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
  QAction* open_joystick =
      AddButton(bar, QStringLiteral("Gamepad\u2026"), QStringLiteral("Use another keymap for gamepads"));
  connect(open_joystick, &QAction::triggered, this, &MainWindow::OpenJoystickKeymap);
  AddMenuButton(bar, QStringLiteral("Guest"), MakeGuestMenu());
  bar->addAction(editor_->Switch());
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

void MainWindow::MakeEditor() {
  editor_ = new KeymapEditor(this, view_, static_cast<QDockWidget*>(log_->parentWidget()));
  connect(editor_, &KeymapEditor::Edited, this, &MainWindow::ShowEdited);
  connect(editor_, &KeymapEditor::Finished, this, &MainWindow::UseEdited);
  connect(editor_, &KeymapEditor::Message, this, &MainWindow::Tell);
}

void MainWindow::MakeRecordBar() {
  addToolBarBreak();
  records_ = new RecordBar(this);
  addToolBar(records_);
  connect(records_, &RecordBar::Message, this, &MainWindow::Tell);
  connect(records_, &RecordBar::DialogClosed, view_, QOverload<>::of(&QWidget::setFocus));
  connect(records_->SecondView(), &QAction::toggled, this, &MainWindow::ShowSecondView);
  connect(replay_dock_, &QDockWidget::visibilityChanged, records_->SecondView(), &QAction::setChecked);
  ShowSecondView(false);
}

void MainWindow::MakeReplayDock() {
  replay_frame_ = new GuestFrame(new GuestScreen(WindowHost::kReplayDisplay, GuestScreen::Texts::kLeft));
  replay_frame_->setMinimumHeight(kReplayViewHeight);
  replay_dock_ = new QDockWidget(QStringLiteral("Replays"), this);
  replay_dock_->setWidget(replay_frame_);
  replay_dock_->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  addDockWidget(Qt::RightDockWidgetArea, replay_dock_);
  replay_dock_->hide();
}

void MainWindow::ShowSecondView(bool shown) {
  replay_dock_->setVisible(shown);
  taviinputmanager::UpdateReplayDisplayId(shown ? WindowHost::kReplayDisplay : WindowHost::kDisplay);
}

void MainWindow::Tell(const QString& text, bool is_problem) {
  if (is_problem) QApplication::beep();
  statusBar()->showMessage(text, kMessageMs);
}

QString MainWindow::ListenAs(const QString& name) {
  mirror_ = std::make_unique<MirrorServer>(WindowHost::kDisplay);
  connect(mirror_.get(), &MirrorServer::SourcesChanged, this, [this, name](int count) {
    Tell(QStringLiteral("%1 instances send lines to %2").arg(count).arg(name), false);
  });
  return mirror_->Listen(name);
}

void MainWindow::MirrorTo(const QStringList& names) {
  MirrorTargets* targets = MirrorTargets::GetInstance();
  connect(targets, &MirrorTargets::Reached, this,
          [this](const QString& name) { Tell(QStringLiteral("Lines go to %1, too").arg(name), false); });
  connect(targets, &MirrorTargets::Lost, this, [this](const QString& name, const QString& problem) {
    Tell(QStringLiteral("No more lines go to %1: %2").arg(name, problem), true);
  });
  for (const QString& name : names) targets->Add(name);
}

// Edits and a recording that were never saved are asked for.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (!editor_->MayLeave()) return event->ignore();
  Recorder* recorder = Recorder::GetInstance();
  if (recorder->Status() == taviinputmanager::RecordStatus::Stopped) return event->accept();
  if (records_->HasTarget()) {
    event->setAccepted(records_->SaveRecording());
    return;
  }
  const auto answer = QMessageBox::question(this, windowTitle(), QStringLiteral("Save what was recorded?"),
                                            QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (answer == QMessageBox::Discard) recorder->Discard();
  event->setAccepted(answer == QMessageBox::Discard || (answer == QMessageBox::Save && records_->SaveRecording()));
}

void MainWindow::OpenKeymap() {
  if (!editor_->MayLeave()) return;
  const QString path = AskForKeymap(QStringLiteral("Open a keymap"), keymap_);
  if (!path.isEmpty()) LoadKeymap(path);
}

void MainWindow::OpenJoystickKeymap() {
  const QString path = AskForKeymap(QStringLiteral("Open a keymap for gamepads"), joystick_keymap_);
  if (!path.isEmpty()) LoadJoystickKeymap(path);
}

QString MainWindow::AskForKeymap(const QString& title, const Keymap& before) {
  QString folder = QFileInfo(before.path).absolutePath();
  if (before.path.isEmpty() && QFileInfo(QLatin1String(kExampleFolder)).isDir()) folder = QLatin1String(kExampleFolder);
  const QString path =
      QFileDialog::getOpenFileName(this, title, folder, QStringLiteral("Keymaps (*.yaml *.yml *.json);;All files (*)"));
  view_->setFocus();
  return path;
}

QString MainWindow::Read(const QString& path, Keymap* keymap) {
  const tavikeymapmanager::LoadResult result = tavikeymapmanager::ReadKeymapFile(path);
  Take(result, path, keymap);
  keymap->watch->Watch(path);
  return result.name;
}

void MainWindow::Take(const tavikeymapmanager::LoadResult& result, const QString& path, Keymap* keymap) {
  keymap->path = path;
  keymap->contents = QStringLiteral("%1 \u00B7 %2").arg(QFileInfo(path).fileName(), ItemCountText(result));
  keymap->marks = MarksOf(result);
  keymap->diagnostics->Show(result);
}

void MainWindow::LoadKeymap(const QString& path) {
  const QString name = Read(path, &keymap_);
  taviinputmanager::OnLoadKeymapConfigAndInfo(path, QString(), QString(), WindowHost::kDisplay);
  setWindowModified(false);
  setWindowTitle(TitleOf(name, path));
  records_->SetApp(name);
  ShowKeymaps();
  editor_->Open(path);
}

// What is edited is shown at once, and used when the editing is over.
void MainWindow::ShowEdited() {
  KeymapDocument* document = editor_->Document();
  if (keymap_.path != document->Path()) keymap_.watch->Watch(document->Path());
  Take(document->Keymap(), document->Path(), &keymap_);
  ShowKeymaps();
  const bool is_empty = editor_->IsOn() && document->ItemCount() == 0 && document->Refusal().isEmpty();
  if (is_empty)
    view_->SetHint(QStringLiteral("No items yet. Click with the right button where the first one is to be."));
  setWindowModified(false);
  setWindowTitle(TitleOf(document->Keymap().name, document->Path()) +
                 (document->IsModified() ? QStringLiteral("[*]") : QString()));
  setWindowModified(document->IsModified());
}

void MainWindow::UseEdited(const QString& file) {
  LoadKeymap(file);
  ShowEdited();
}

void MainWindow::LoadJoystickKeymap(const QString& path) {
  pads_.ReleaseAll();  // by the keymap that they were pressed by
  Read(path, &joystick_keymap_);
  // The system's keymap takes nothing and passes all on.
  taviinputmanager::OnLoadJoystickConfigAndInfo(path.isEmpty() ? tavikeymapmanager::keywords::kSystemKeymap : path, 0);
  ShowKeymaps();
}

void MainWindow::ShowKeymaps() {
  view_->SetMarks(MergeMarks(keymap_.marks, joystick_keymap_.marks));
  const bool has_keymap = !keymap_.path.isEmpty();
  view_->SetHint(has_keymap
                     ? QString()
                     : QStringLiteral("No keymap. The left mouse button is a finger; Open\u2026 takes a keymap."));
  QStringList contents(has_keymap ? keymap_.contents : QStringLiteral("No keymap"));
  if (!joystick_keymap_.path.isEmpty()) contents += QStringLiteral("gamepads: ") + joystick_keymap_.contents;
  keymap_label_->setText(contents.join(QStringLiteral("  \u00B7  ")));
  keymap_label_->setToolTip((keymap_.path + QLatin1Char('\n') + joystick_keymap_.path).trimmed());
}

void MainWindow::ReadGamepads() {
  TakeActivation();
  pad_poll_ = std::make_unique<GamepadPoll>(&pads_);
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange) TakeActivation();
  QMainWindow::changeEvent(event);
}

void MainWindow::TakeActivation() {
  const bool is_held = taviinputmanager::isInputHoldWhenWindowDeactivate();
  if (!isActiveWindow() && !is_held) pads_.ReleaseAll();
  pads_.SetListening(isActiveWindow());
}

void MainWindow::ShowPads() {
  pad_label_->setText(PadsText(pads_));
  const PadInput* pad = pads_.LastUsed();
  panel_->SetPad(pad ? std::make_optional(PictureOf(*pad)) : std::nullopt, pads_.LastUsedName());
}

void MainWindow::SetGuestSize(const QSize& size) {
  taviinputmanager::OnResetInputStatus(true, 0);  // what is down has its place in the display before
  guest_follows_view_ = size.isEmpty();
  if (!guest_follows_view_) WindowHost::GetInstance()->SetGuestSize(size);
  frame_->SetShape(size);
  replay_frame_->SetShape(size);
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
