#include "host/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QShowEvent>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "host/keymap_report.h"
#include "host/window/diagnostics_panel.h"
#include "host/window/event_log.h"
#include "host/window/event_viewer.h"
#include "host/window/finding_marks.h"
#include "host/window/gamepad_picture.h"
#include "host/window/gamepad_poll.h"
#include "host/window/guest_frame.h"
#include "host/window/guest_menu.h"
#include "host/window/guest_panel.h"
#include "host/window/guest_screen.h"
#include "host/window/guest_view.h"
#include "host/window/input_port.h"
#include "host/window/keymap_editor.h"
#include "host/window/keymap_watch.h"
#include "host/window/line_log.h"
#include "host/window/mirror_server.h"
#include "host/window/mirror_targets.h"
#include "host/window/record_bar.h"
#include "host/window/recorder.h"
#include "host/window/state_corner.h"
#include "host/window/theme.h"
#include "host/window/window_host.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

constexpr QSize kFirstSize(1360, 760);
constexpr int kLabelGap = 16;  // in the status bar
constexpr int kReplayViewHeight = 180;
constexpr int kMessageMs = 8000;
constexpr char kExampleFolder[] = "examples/keymaps";

enum ReservedKey { kPanic, kPause };

KeyCombination KeyOf(const char* name) {
  KeyCombination key;
  ParseKeyCombination(QLatin1String(name), &key);
  return key;
}

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

QString SourcesText(int count, const QString& name) {
  if (count == 0) return QStringLiteral("No instance sends lines to %1 any more").arg(name);
  if (count == 1) return QStringLiteral("One instance sends its lines to %1").arg(name);
  return QStringLiteral("%1 instances send their lines to %2").arg(count).arg(name);
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
      keymap_{{}, {}, {}, {}, new DiagnosticsPanel(QStringLiteral("This keymap")), new KeymapWatch(this)},
      joystick_keymap_{
          {}, {}, {}, {}, new DiagnosticsPanel(QStringLiteral("The keymap of gamepads")), new KeymapWatch(this)},
      log_(new LineLog),
      keymap_label_(new QLabel),
      state_label_(new QLabel),
      mirror_label_(new QLabel),
      pad_label_(new QLabel),
      size_label_(new QLabel),
      pads_([this](QEvent* event) {
        if (!editor_->TakePad(event)) InputPort::GetInstance()->SendJoystick(event);
      }),
      mapping_(&pads_),
      state_(&mapping_) {
  setCentralWidget(MakeCentre());
  MakeLogDock();
  MakeEventDock();
  MakeReplayDock();
  MakeEditor();
  MakeToolBar();
  editor_->AddBar();
  MakeRecordBar();
  SetPanicKey(KeyOf(kPanicKey));
  SetPauseKey(KeyOf(kPauseKey));
  statusBar()->addWidget(keymap_label_, 1);
  for (QLabel* label : {state_label_, mirror_label_, pad_label_}) {
    label->setContentsMargins(0, 0, kLabelGap, 0);
    statusBar()->addPermanentWidget(label);
  }
  statusBar()->addPermanentWidget(size_label_);
  finding_marks_ = new FindingMarks(view_);
  new StateCorner(&state_, view_);
  for (const DiagnosticsPanel* panel : {keymap_.diagnostics, joystick_keymap_.diagnostics}) {
    connect(panel, &DiagnosticsPanel::FindingChosen, finding_marks_, &FindingMarks::Flash);
  }
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
  connect(&state_, &WindowState::Changed, this, &MainWindow::ShowState);
  ShowPads();
  ShowState();
  ShowMirrors();
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

  mapping_on_ = AddSwitch(bar, QStringLiteral("Mapping"), QString(), true);
  connect(mapping_on_, &QAction::toggled, &mapping_, [this](bool on) { mapping_.SetPaused(!on); });
  QAction* overlay = AddSwitch(bar, QStringLiteral("Keys"), QStringLiteral("Show the keymap over the guest"), true);
  connect(overlay, &QAction::toggled, view_, &GuestView::SetOverlayShown);
  QAction* text = AddSwitch(bar, QStringLiteral("Text field"),
                            QStringLiteral("As if the guest had a text field focused: keys are typed"), false);
  connect(text, &QAction::toggled, this, [](bool on) { WindowHost::GetInstance()->SetTextField(on); });
  bar->addAction(log_shown_);
  bar->addAction(events_shown_);
  bar->addSeparator();

  QAction* back = AddButton(bar, QStringLiteral("Back"), QStringLiteral("Click the guest's back key"));
  connect(back, &QAction::triggered, this, [] { taviinputmanager::doBackAction(WindowHost::kDisplay); });
  let_go_ = AddButton(bar, QStringLiteral("Let go"), QString());
  connect(let_go_, &QAction::triggered, &mapping_, &Mapping::LetGoOfEverything);
}

void MainWindow::SetPanicKey(const KeyCombination& key) {
  let_go_->setToolTip(
      QStringLiteral("Lift every finger and key of the guest, end replays and macros (%1)").arg(key.name));
  reserved_keys_.Reserve(kPanic, key, [this] { let_go_->trigger(); });
}

void MainWindow::SetPauseKey(const KeyCombination& key) {
  mapping_on_->setToolTip(QStringLiteral("Off: keys and buttons reach the guest as what they are (%1)").arg(key.name));
  state_.SetPauseKey(key.name);
  reserved_keys_.Reserve(kPause, key, [this] { mapping_on_->toggle(); });
}

void MainWindow::ClearLog() { log_->Clear(); }

void MainWindow::PauseMapping() { mapping_on_->setChecked(false); }

GuestMenu* MainWindow::MakeGuestMenu() {
  guest_menu_ = new GuestMenu(this);
  connect(guest_menu_, &GuestMenu::SizeChosen, this, &MainWindow::SetGuestSize);
  connect(guest_menu_, &GuestMenu::RotationChosen, this, &MainWindow::SetRotation);
  connect(guest_menu_, &GuestMenu::PixelRatioChosen, this, &MainWindow::SetPixelRatio);
  connect(guest_menu_, &GuestMenu::BackgroundWanted, this, &MainWindow::OpenBackground);
  connect(guest_menu_, &GuestMenu::BackgroundDropped, this, [this] { SetBackground(QString()); });
  guest_menu_->MarkRotation(0);
  guest_menu_->MarkPixelRatio(1);
  return guest_menu_;
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

void MainWindow::MakeEventDock() {
  auto* dock = new QDockWidget(QStringLiteral("Events of the host"), this);
  dock->setWidget(new EventViewer(new EventLog(&mapping_)));
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  addDockWidget(Qt::BottomDockWidgetArea, dock);
  events_shown_ = dock->toggleViewAction();
  events_shown_->setText(QStringLiteral("Events"));
  events_shown_->setToolTip(QStringLiteral("Show each event, what it matched and what went out because of it"));
  dock->hide();
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
    mirror_sources_ = count;
    ShowMirrors();
    Tell(SourcesText(count, name), false);
  });
  const QString problem = mirror_->Listen(name);
  if (problem.isEmpty()) listens_as_ = name;
  ShowMirrors();
  return problem;
}

void MainWindow::MirrorTo(const QStringList& names) {
  MirrorTargets* targets = MirrorTargets::GetInstance();
  connect(targets, &MirrorTargets::Reached, this, [this](const QString& name) {
    ShowMirrors();
    Tell(QStringLiteral("Lines go to %1, too").arg(name), false);
  });
  connect(targets, &MirrorTargets::Lost, this, [this](const QString& name, const QString& problem) {
    ShowMirrors();
    Tell(QStringLiteral("No more lines go to %1: %2").arg(name, problem), true);
  });
  for (const QString& name : names) targets->Add(name);
  ShowMirrors();
}

// A message takes the place of those labels that are seen. What was told before the window was, is told again.
void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  const QString told = statusBar()->currentMessage();
  if (event->spontaneous() || told.isEmpty()) return;
  statusBar()->clearMessage();
  statusBar()->showMessage(told, kMessageMs);
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

void MainWindow::Take(const KeymapSource& source, Keymap* keymap) {
  const QString& path = source.Path();
  const tavikeymapmanager::LoadResult& in_use = source.InUse();
  keymap->path = path;
  keymap->contents = QStringLiteral("%1 \u00B7 %2").arg(QFileInfo(path).fileName(), ItemCountText(in_use));
  keymap->marks = MarksOf(in_use);
  keymap->findings = PlaceFindings(source, keymap == &joystick_keymap_ ? QStringLiteral("G") : QString());
  keymap->diagnostics->Show(source, keymap->findings);
}

void MainWindow::LoadKeymap(const QString& path) {
  mapping_.Read(path);
  Take(mapping_.Keymap(), &keymap_);
  keymap_.watch->Watch(path);
  const tavikeymapmanager::LoadResult& in_use = mapping_.Keymap().InUse();
  setWindowModified(false);
  setWindowTitle(TitleOf(in_use.name, path));
  records_->SetApp(in_use.name);
  ShowKeymaps();
  for (const QString& key : reserved_keys_.FindIn(in_use.config.get())) {
    Tell(QStringLiteral("%1 is a key of this keymap that the window keeps for itself; --pause-key and --panic-key take "
                        "other keys")
             .arg(key),
         true);
  }
  editor_->Open(path);
}

// What is edited is shown at once, and used when the editing is over.
void MainWindow::ShowEdited() {
  KeymapDocument* document = editor_->Document();
  if (keymap_.path != document->Path()) keymap_.watch->Watch(document->Path());
  edited_.ReadText(document->Path(), document->Text());
  Take(edited_, &keymap_);
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
  mapping_.ReadJoystick(path);
  Take(mapping_.JoystickKeymap(), &joystick_keymap_);
  joystick_keymap_.watch->Watch(path);
  ShowKeymaps();
}

void MainWindow::ShowKeymaps() {
  view_->SetMarks(MergeMarks(keymap_.marks, joystick_keymap_.marks));
  finding_marks_->Show(keymap_.findings + joystick_keymap_.findings);
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

void MainWindow::ShowState() {
  const StateWord word = state_.MappingWord();
  view_->SetOverlayDimmed(mapping_.IsPaused());
  state_label_->setText(QStringLiteral("<span style='color:%1'>\u25CF</span> %2").arg(word.color.name(), word.text));
}

void MainWindow::ShowMirrors() {
  QStringList texts;
  const QStringList targets = MirrorTargets::GetInstance()->Names();
  if (!targets.isEmpty()) texts += QStringLiteral("Sends to ") + targets.join(QStringLiteral(", "));
  if (!listens_as_.isEmpty()) texts += QStringLiteral("Listens as %1 (%2)").arg(listens_as_).arg(mirror_sources_);
  mirror_label_->setText(texts.join(QStringLiteral(" \u00B7 ")));
  mirror_label_->setToolTip(QStringLiteral("The instances that get the same lines, and how many send theirs"));
  mirror_label_->setVisible(!texts.isEmpty());
}

void MainWindow::SetGuestSize(const QSize& size) {
  guest_follows_view_ = size.isEmpty();
  if (!guest_follows_view_) WindowHost::GetInstance()->SetGuestSize(size);
  guest_menu_->MarkSize(size);
  ShapeGuest();
}

void MainWindow::SetRotation(int degrees) {
  if (degrees == WindowHost::GetInstance()->Geometry().rotation) return;
  WindowHost::GetInstance()->SetRotation(degrees);
  guest_menu_->MarkRotation(degrees);
  ShapeGuest();
}

void MainWindow::SetPixelRatio(double ratio) {
  if (ratio == WindowHost::GetInstance()->PixelRatio()) return;
  WindowHost::GetInstance()->SetPixelRatio(ratio);
  guest_menu_->MarkPixelRatio(ratio);
  ShapeGuest();
}

void MainWindow::ShapeGuest() {
  taviinputmanager::OnResetInputStatus(true, 0);  // what is down has its place in the display before
  const QSize display = WindowHost::GetInstance()->Geometry().DisplaySize();
  for (GuestFrame* frame : {frame_, replay_frame_}) frame->SetShape(guest_follows_view_ ? QSize() : display);
  TakeViewSize();
  TellShapeOfBackground();
}

void MainWindow::TakeViewSize() {
  WindowHost* host = WindowHost::GetInstance();
  if (guest_follows_view_) {
    host->SetGuestSize(host->Geometry().IsTurned() ? view_->size().transposed() : view_->size());
  }
  ShowSizes();
}

void MainWindow::ShowSizes() {
  const WindowHost* host = WindowHost::GetInstance();
  const GuestGeometry guest = host->Geometry();
  QString text = QStringLiteral("Guest ") + SizeText(guest.DisplaySize());
  if (guest.rotation != 0) text += QStringLiteral(" at %1\u00B0").arg(guest.rotation);
  if (host->PixelRatio() != 1) text += QStringLiteral(" \u00B7 pixel ratio %1").arg(host->PixelRatio());
  size_label_->setText(text + QStringLiteral(" \u00B7 shown at ") + SizeText(view_->size()));
  size_label_->setToolTip(QStringLiteral("Touch surface %1, window as the library is told %2")
                              .arg(SizeText(guest.touch_surface), SizeText(host->ViewSize())));
}

QString MainWindow::SetBackground(const QString& file) {
  if (file.isEmpty()) {
    background_.Clear();
  } else {
    const QString problem = background_.Read(file);
    if (!problem.isEmpty()) return problem;
  }
  view_->SetBackground(background_);
  guest_menu_->MarkBackground(!background_.IsEmpty());
  TellShapeOfBackground();
  return {};
}

void MainWindow::TellShapeOfBackground() {
  const QString note = background_.ShapeNote(WindowHost::GetInstance()->Geometry().DisplaySize());
  if (!note.isEmpty()) Tell(note, false);
}

void MainWindow::OpenBackground() {
  const QString file =
      QFileDialog::getOpenFileName(this, QStringLiteral("Open a picture of the guest's screen"), QString(),
                                   QStringLiteral("Pictures (*.png *.jpg *.jpeg);;All files (*)"));
  view_->setFocus();
  if (file.isEmpty()) return;
  const QString problem = SetBackground(file);
  if (!problem.isEmpty()) Tell(problem, true);
}

}  // namespace tavi
