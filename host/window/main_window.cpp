#include "host/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QLabel>
#include <QPointer>
#include <QShowEvent>
#include <QStatusBar>
#include <QVBoxLayout>

#include "host/gamepad/gamepad_poll.h"
#include "host/look/theme.h"
#include "host/session/input_port.h"
#include "host/session/keymap_report.h"
#include "host/session/keymap_watch.h"
#include "host/session/live_host.h"
#include "host/window/controls/control_focus.h"
#include "host/window/controls/question.h"
#include "host/window/dock_folder.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/events/event_log.h"
#include "host/window/events/event_viewer.h"
#include "host/window/events/line_log.h"
#include "host/window/findings/diagnostics_panel.h"
#include "host/window/findings/finding_marks.h"
#include "host/window/main_tool_bar.h"
#include "host/window/mirror_label.h"
#include "host/window/pointer/pointer_notice.h"
#include "host/window/records/record_bar.h"
#include "host/window/records/replay_dock.h"
#include "host/window/target_button.h"
#include "host/window/view/gamepad_picture.h"
#include "host/window/view/guest_display.h"
#include "host/window/view/guest_frame.h"
#include "host/window/view/guest_menu.h"
#include "host/window/view/guest_panel.h"
#include "host/window/view/guest_view.h"
#include "host/window/view/state_corner.h"
#include "keymapmanager/keymap_file.h"
#include "taviinputmanager/taviinputmanager.h"

namespace tavi {

namespace {

constexpr QSize kUsualSize(1360, 760);
constexpr int kLabelGap = 16;  // in the status bar
constexpr int kMessageMs = 8000;
constexpr char kExampleFolder[] = "examples/keymaps";

enum ReservedKey { kPanic, kPause, kControls };

KeyCombination KeyOf(const char* name) {
  KeyCombination key;
  ParseKeyCombination(QLatin1String(name), &key);
  return key;
}

// The parts of a title, of which any may be missing, and the program.
QString TitleOf(QStringList parts) {
  parts.removeAll(QString());
  parts += QStringLiteral("tavi");
  return parts.join(QStringLiteral(" \u2013 "));
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
      full_screen_(new QAction(QStringLiteral("Full screen"), this)),
      keymap_{{}, {}, {}, {}, new DiagnosticsPanel(QStringLiteral("This keymap")), new KeymapWatch(this)},
      joystick_keymap_{
          {}, {}, {}, {}, new DiagnosticsPanel(QStringLiteral("The keymap of gamepads")), new KeymapWatch(this)},
      log_(new LineLog),
      docks_(new DockFolder(this)),
      controls_(new ControlFocus(this, view_)),
      keymap_label_(new QLabel),
      state_label_(new QLabel),
      mirrors_(new MirrorLabel(this)),
      targets_(new TargetButton(LiveHost::GetInstance()->Targets(), this)),
      pad_label_(new QLabel),
      pads_([this](QEvent* event) {
        if (!editor_->TakePad(event)) InputPort::GetInstance()->SendJoystick(event);
      }),
      mapping_(&pads_),
      state_(&mapping_) {
  setCentralWidget(MakeCentre());
  MakeLogDock();
  MakeEventDock();
  MakeReplayDock();
  MakeDisplay();
  MakeFullScreen();
  MakeEditor();
  MakeToolBar();
  editor_->AddBar();
  MakeRecordBar();
  controls_->SetBars({tools_, editor_->Bar(), records_});
  MakeStatusBar();
  SetPanicKey(KeyOf(kPanicKey));
  SetPauseKey(KeyOf(kPauseKey));
  SetControlsKey(KeyOf(kControlsKey));
  docks_->SetStrip(panel_);
  finding_marks_ = new FindingMarks(view_);
  connect(editor_->Switch(), &QAction::toggled, this, &MainWindow::SetEditing);
  new StateCorner(&state_, view_);
  for (const DiagnosticsPanel* panel : {keymap_.diagnostics, joystick_keymap_.diagnostics}) {
    connect(panel, &DiagnosticsPanel::FindingChosen, finding_marks_, &FindingMarks::Flash);
  }
  resize(kUsualSize);

  LiveHost* host = LiveHost::GetInstance();
  connect(view_, &GuestView::ModelChanged, panel_, QOverload<>::of(&QWidget::update));
  connect(view_, &GuestView::Composing, panel_, &GuestPanel::SetPreedit);
  connect(keymap_.watch, &KeymapWatch::Changed, this, [this] {
    if (!editor_->TakeFileChange()) LoadKeymap(keymap_.path);
  });
  // What is in use stays, but nobody is to be caught in its view control.
  connect(keymap_.watch, &KeymapWatch::Vanished, this, [] { taviinputmanager::OnResetInputStatus(true, 0); });
  for (const Keymap* keymap : {&keymap_, &joystick_keymap_}) {
    connect(keymap->watch, &KeymapWatch::Vanished, this, [this, keymap] { TellVanished(*keymap); });
  }
  connect(joystick_keymap_.watch, &KeymapWatch::Changed, this, [this] { LoadJoystickKeymap(joystick_keymap_.path); });
  connect(&pads_, &Gamepads::Changed, this, &MainWindow::ShowPads);
  connect(&state_, &WindowState::Changed, this, &MainWindow::ShowState);
  ShowPads();
  ShowState();
  host->Start([view = QPointer<GuestView>(view_)](const QSize& size) { return view ? view->Corner(size) : QPoint(); });
  taviinputmanager::UpdateReplayDisplayId(LiveHost::kDisplay);
  LoadJoystickKeymap(QString());
  display_->SetSize(host->GuestSize());
  // What a guest without any contact is sent by way of a beginning is no news.
  connect(host, &LiveHost::EntryAdded, log_, &LineLog::Add);
  view_->setFocus();
}

MainWindow::~MainWindow() {
  view_->clearFocus();  // lets go of what is held while all that hears of it is there
}

QWidget* MainWindow::MakeCentre() {
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(new PointerNotice(CurrentWindowSystem(), &view_->Capture(), full_screen_));
  layout->addWidget(keymap_.diagnostics);
  layout->addWidget(joystick_keymap_.diagnostics);
  layout->addWidget(frame_, 1);
  layout->addWidget(panel_);
  return centre;
}

void MainWindow::MakeToolBar() {
  tools_ = new MainToolBar({display_->Menu(), editor_->Switch(), log_shown_, events_shown_}, this);
  addToolBar(tools_);
  connect(tools_, &MainToolBar::KeymapWanted, this, &MainWindow::OpenKeymap);
  connect(tools_, &MainToolBar::JoystickKeymapWanted, this, &MainWindow::OpenJoystickKeymap);
  connect(tools_, &MainToolBar::OverlayToggled, view_, &GuestView::SetOverlayShown);
  connect(tools_->MappingOn(), &QAction::toggled, &mapping_, [this](bool on) { mapping_.SetPaused(!on); });
  connect(tools_->LetGo(), &QAction::triggered, &mapping_, &Mapping::LetGoOfEverything);
}

void MainWindow::MakeDisplay() {
  display_ = new GuestDisplay(view_, frame_, replay_dock_->Frame(), this);
  connect(display_, &GuestDisplay::Message, this, &MainWindow::Tell);
  connect(display_, &GuestDisplay::DialogClosed, view_, QOverload<>::of(&QWidget::setFocus));
}

void MainWindow::MakeFullScreen() {
  full_screen_->setCheckable(true);
  connect(full_screen_, &QAction::triggered, this,
          [this](bool on) { setWindowState(windowState().setFlag(Qt::WindowFullScreen, on)); });
  display_->Menu()->addSeparator();
  display_->Menu()->addAction(full_screen_);
}

void MainWindow::MakeStatusBar() {
  connect(mirrors_, &MirrorLabel::Message, this, &MainWindow::Tell);
  connect(mirrors_, &MirrorLabel::Changed, this, &MainWindow::ShowTitle);
  connect(targets_, &TargetButton::Message, this, &MainWindow::Tell);
  keymap_label_->setMinimumWidth(1);  // a long name must not widen the window
  statusBar()->addWidget(keymap_label_, 1);
  for (QLabel* label : {state_label_, static_cast<QLabel*>(mirrors_), pad_label_}) {
    label->setContentsMargins(0, 0, kLabelGap, 0);
    statusBar()->addPermanentWidget(label);
  }
  statusBar()->addPermanentWidget(targets_);
  statusBar()->addPermanentWidget(display_->Label());
}

void MainWindow::SetPanicKey(const KeyCombination& key) {
  tools_->TellPanicKey(key.name);
  reserved_keys_.Reserve(kPanic, key, "--panic-key", [this] { tools_->LetGo()->trigger(); });
}

void MainWindow::SetPauseKey(const KeyCombination& key) {
  tools_->TellPauseKey(key.name);
  state_.SetPauseKey(key.name);
  reserved_keys_.Reserve(kPause, key, "--pause-key", [this] { tools_->MappingOn()->toggle(); });
}

void MainWindow::SetControlsKey(const KeyCombination& key) {
  reserved_keys_.Reserve(kControls, key, "--controls-key", [this] { controls_->Take(); });
}

QString MainWindow::PauseKeyName() const { return reserved_keys_.NameOf(kPause); }

QString MainWindow::PanicKeyName() const { return reserved_keys_.NameOf(kPanic); }

QString MainWindow::ControlsKeyName() const { return reserved_keys_.NameOf(kControls); }

void MainWindow::ShowPartsInUse() {
  editor_->ShowParts();
  replay_dock_->setVisible(records_->SecondView()->isChecked());
}

void MainWindow::ClearLog() { log_->Clear(); }

void MainWindow::PauseMapping() { tools_->MappingOn()->setChecked(false); }

QDockWidget* MainWindow::AddDock(const QString& name, const QString& title, QWidget* content, Qt::DockWidgetArea area) {
  auto* dock = new QDockWidget(title, this);
  dock->setObjectName(name);
  dock->setWidget(content);
  dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetClosable);
  addDockWidget(area, dock);
  return dock;
}

void MainWindow::MakeLogDock() {
  log_dock_ = AddDock(QStringLiteral("log"), QStringLiteral("Lines for the guest"), log_, Qt::RightDockWidgetArea);
  docks_->Add(log_dock_);
  log_shown_ = log_dock_->toggleViewAction();
  log_shown_->setText(QStringLiteral("Log"));
  log_shown_->setToolTip(QStringLiteral("Show the lines for the guest"));
}

void MainWindow::MakeEventDock() {
  auto* viewer = new EventViewer(new EventLog(&mapping_));
  event_dock_ =
      AddDock(QStringLiteral("events"), QStringLiteral("Events of the host"), viewer, Qt::BottomDockWidgetArea);
  docks_->Add(event_dock_);
  events_shown_ = event_dock_->toggleViewAction();
  events_shown_->setText(QStringLiteral("Events"));
  events_shown_->setToolTip(QStringLiteral("Show each event, what it matched and what went out because of it"));
  event_dock_->hide();
}

// A dock that is asked for is shown in a small window, too.
void MainWindow::ShowEvents() { event_dock_->show(); }

void MainWindow::MakeEditor() {
  editor_ = new KeymapEditor(this, view_, log_dock_);
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
  connect(records_->SecondView(), &QAction::toggled, replay_dock_, &ReplayDock::SetInUse);
  connect(replay_dock_, &ReplayDock::Closed, this, [this] { records_->SecondView()->setChecked(false); });
}

void MainWindow::MakeReplayDock() {
  replay_dock_ = new ReplayDock(view_, this);
  addDockWidget(Qt::RightDockWidgetArea, replay_dock_);
  replay_dock_->hide();
}

void MainWindow::Tell(const QString& text, bool is_problem) {
  if (is_problem) QApplication::beep();
  statusBar()->showMessage(text, kMessageMs);
}

// A message takes the place of those labels that are seen. What was told before the window was, is told again.
void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  const QString told = statusBar()->currentMessage();
  if (event->spontaneous() || told.isEmpty()) return;
  statusBar()->clearMessage();
  statusBar()->showMessage(told, kMessageMs);
}

// Edits and a recording that were never saved are asked for. What is down is lifted while it is recorded still.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (!editor_->MayLeave()) return event->ignore();
  mapping_.LetGoOfEverything();
  event->setAccepted(records_->MayLeave());
}

QStringList MainWindow::LeaveWithoutAsking() {
  mapping_.LetGoOfEverything();
  QStringList news{editor_->KeepEdits(), records_->SaveWithoutAsking()};
  news.removeAll(QString());
  return news;
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
  const QString path = AskForFile(this, title, folder, QStringLiteral("Keymaps (*.yaml *.yml *.json);;All files (*)"));
  view_->setFocus();
  return path;
}

void MainWindow::Take(const KeymapSource& source, Keymap* keymap) {
  const QString& path = source.Path();
  const tavikeymapmanager::LoadResult& in_use = source.InUse();
  keymap->path = path;
  keymap->contents = QStringLiteral("%1 \u00B7 %2").arg(QFileInfo(path).fileName(), ItemCountText(in_use));
  keymap->marks = MarksOf(in_use);
  Findings findings;
  findings.all = source.LastRead().diagnostics;
  if (!source.LastRead().HasErrors()) findings.all += reserved_keys_.FindingsIn(in_use);
  const QString prefix = keymap == &joystick_keymap_ ? QStringLiteral("G") : QString();
  findings.placed = PlaceFindings(source, findings.all, prefix);
  keymap->findings = findings.placed;
  keymap->diagnostics->Show(source, findings);
}

// Watched from before it is read, so that no change is missed.
void MainWindow::LoadKeymap(const QString& path) {
  keymap_.watch->Watch(path);
  mapping_.Read(path);
  Take(mapping_.Keymap(), &keymap_);
  const tavikeymapmanager::LoadResult& in_use = mapping_.Keymap().InUse();
  name_ = in_use.name.isEmpty() ? QFileInfo(path).fileName() : in_use.name;
  records_->SetApp(in_use.name);
  ShowKeymaps();
  for (const QString& news : reserved_keys_.NewsOf(in_use.config.get())) Tell(news, true);
  editor_->Open(path, mapping_.Keymap().LastText());
  ShowTitle();  // of what is edited from now on
}

void MainWindow::TellVanished(const Keymap& keymap) {
  const QString name = QFileInfo(keymap.path).fileName();
  Tell(QStringLiteral("%1 is gone; the keymap stays in use as it was read last").arg(name), true);
  ShowKeymaps();
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
  const QString& name = document->Keymap().name;
  name_ = name.isEmpty() ? QFileInfo(document->Path()).fileName() : name;
  ShowTitle();
}

void MainWindow::ShowTitle() {
  const bool is_modified = editor_->Document()->IsModified();
  setWindowModified(false);  // a title without a place for it must not find it on
  setWindowTitle(TitleOf({name_, mirrors_->TitlePart()}) + (is_modified ? QStringLiteral("[*]") : QString()));
  setWindowModified(is_modified);
}

void MainWindow::SetEditing(bool editing) {
  state_.SetEditing(editing);
  keymap_.diagnostics->KeepHeight(editing ? DiagnosticsPanel::kEditingHeight : DiagnosticsPanel::kOwnHeight);
  DiagnosticsPanel* other = joystick_keymap_.diagnostics;
  other->KeepHeight(!editing ? DiagnosticsPanel::kOwnHeight : other->isHidden() ? 0 : other->height());
  finding_marks_->Cover(editing ? static_cast<QWidget*>(editor_->Layer()) : view_);
}

void MainWindow::UseEdited(const QString& file) {
  LoadKeymap(file);
  ShowEdited();
}

void MainWindow::LoadJoystickKeymap(const QString& path) {
  joystick_keymap_.watch->Watch(path);
  mapping_.ReadJoystick(path);
  Take(mapping_.JoystickKeymap(), &joystick_keymap_);
  ShowKeymaps();
}

QString MainWindow::ContentsOf(const Keymap& keymap) {
  return keymap.watch->IsThere() ? keymap.contents : keymap.contents + QStringLiteral(" \u00B7 the file is gone");
}

void MainWindow::ShowKeymaps() {
  view_->SetMarks(MergeMarks(keymap_.marks, joystick_keymap_.marks));
  finding_marks_->Show(keymap_.findings + joystick_keymap_.findings);
  const bool has_keymap = !keymap_.path.isEmpty();
  view_->SetHint(has_keymap
                     ? QString()
                     : QStringLiteral("No keymap. The left mouse button is a finger; Open\u2026 takes a keymap."));
  QStringList contents(has_keymap ? ContentsOf(keymap_) : QStringLiteral("No keymap"));
  if (!joystick_keymap_.path.isEmpty()) contents += QStringLiteral("gamepads: ") + ContentsOf(joystick_keymap_);
  keymap_label_->setText(contents.join(QStringLiteral("  \u00B7  ")));
  keymap_label_->setToolTip((keymap_.path + QLatin1Char('\n') + joystick_keymap_.path).trimmed());
}

void MainWindow::ReadGamepads() {
  TakeActivation();
  pad_poll_ = std::make_unique<GamepadPoll>(&pads_);
}

void MainWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::ActivationChange) TakeActivation();
  if (event->type() == QEvent::WindowStateChange) full_screen_->setChecked(isFullScreen());
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

}  // namespace tavi
