#include "host/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QFileInfo>
#include <QPointer>
#include <QShowEvent>
#include <QStatusBar>
#include <QVBoxLayout>

#include "host/gamepad/gamepad_poll.h"
#include "host/look/theme.h"
#include "host/session/input_port.h"
#include "host/session/live_host.h"
#include "host/window/controls/control_focus.h"
#include "host/window/controls/question.h"
#include "host/window/dock_folder.h"
#include "host/window/editor/edit_layer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/events/line_log.h"
#include "host/window/findings/diagnostics_panel.h"
#include "host/window/findings/finding_marks.h"
#include "host/window/main_tool_bar.h"
#include "host/window/mirror_label.h"
#include "host/window/pointer/pointer_notice.h"
#include "host/window/records/record_bar.h"
#include "host/window/records/replay_dock.h"
#include "host/window/status_line.h"
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
constexpr char kExampleFolder[] = "examples/keymaps";

enum ReservedKey { kPanic, kPause, kControls };

KeyCombination KeyOf(const char* name) {
  KeyCombination key;
  ParseKeyCombination(QLatin1String(name), &key);
  return key;
}

// The parts of a title, any of which may be missing, and the program's name.
QString TitleOf(QStringList parts) {
  parts.removeAll(QString());
  parts += QStringLiteral("tavi");
  return parts.join(QStringLiteral(" \u2013 "));
}

}  // namespace

MainWindow::MainWindow()
    : view_(new GuestView),
      frame_(new GuestFrame(view_)),
      panel_(new GuestPanel(&view_->Model())),
      full_screen_(new QAction(QStringLiteral("Full screen"), this)),
      keymap_(QStringLiteral("This keymap"), QString(), this),
      joystick_keymap_(QStringLiteral("The keymap of gamepads"), QStringLiteral("G"), this),
      controls_(new ControlFocus(this, view_)),
      mirrors_(new MirrorLabel(this)),
      targets_(new TargetButton(LiveHost::GetInstance()->Targets(), this)),
      pads_([this](QEvent* event) {
        if (!editor_->TakePad(event)) InputPort::GetInstance()->SendJoystick(event);
      }),
      mapping_(&pads_),
      state_(&mapping_) {
  setCentralWidget(MakeCentre());
  lists_ = new ListDocks(this, &mapping_);
  MakeReplayDock();
  MakeDisplay();
  MakeFullScreen();
  MakeEditor();
  MakeToolBar();
  editor_->AddBar();
  MakeRecordBar();
  controls_->SetBars({tools_, editor_->Bar(), records_});
  status_ = new StatusLine(statusBar(), mirrors_, targets_, display_->Label());
  connect(mirrors_, &MirrorLabel::Changed, this, &MainWindow::ShowTitle);
  SetPanicKey(KeyOf(kPanicKey));
  SetPauseKey(KeyOf(kPauseKey));
  SetControlsKey(KeyOf(kControlsKey));
  lists_->Folder()->SetStrip(panel_);
  finding_marks_ = new FindingMarks(view_);
  connect(editor_->Switch(), &QAction::toggled, this, &MainWindow::SetEditing);
  const auto* corner = new StateCorner(&state_, view_);
  view_->SetCovered(corner->geometry());
  connect(corner, &StateCorner::Placed, view_, &GuestView::SetCovered);
  for (const DiagnosticsPanel* panel : {keymap_.Panel(), joystick_keymap_.Panel()}) {
    connect(panel, &DiagnosticsPanel::FindingChosen, finding_marks_, &FindingMarks::Flash);
  }
  resize(kUsualSize);

  LiveHost* host = LiveHost::GetInstance();
  connect(view_, &GuestView::ModelChanged, panel_, QOverload<>::of(&QWidget::update));
  connect(view_, &GuestView::Composing, panel_, &GuestPanel::SetPreedit);
  connect(&keymap_, &ShownKeymap::FileChanged, this, [this] {
    if (!editor_->TakeFileChange()) LoadKeymap(keymap_.Path());
  });
  // The keymap in use stays, but view control ends: the user must be able to reach the desktop.
  connect(&keymap_, &ShownKeymap::FileVanished, this, [] { taviinputmanager::OnResetInputStatus(true, 0); });
  for (const ShownKeymap* keymap : {&keymap_, &joystick_keymap_}) {
    connect(keymap, &ShownKeymap::FileVanished, this, [this, keymap] { TellVanished(*keymap); });
  }
  connect(&joystick_keymap_, &ShownKeymap::FileChanged, this, [this] { LoadJoystickKeymap(joystick_keymap_.Path()); });
  connect(&pads_, &Gamepads::Changed, this, &MainWindow::ShowPads);
  connect(&state_, &WindowState::Changed, this, &MainWindow::ShowState);
  ShowPads();
  ShowState();
  host->Start([view = QPointer<GuestView>(view_)](const QSize& size) { return view ? view->Corner(size) : QPoint(); });
  taviinputmanager::UpdateReplayDisplayId(LiveHost::kDisplay);
  LoadJoystickKeymap(QString());
  display_->SetSize(host->GuestSize());
  // The resets that a guest without contacts gets first are no news.
  connect(host, &LiveHost::EntryAdded, lists_->Log(), &LineLog::Add);
  view_->setFocus();
}

MainWindow::~MainWindow() {
  view_->clearFocus();  // releases what is held while those who observe it still exist
}

QWidget* MainWindow::MakeCentre() {
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(new PointerNotice(CurrentWindowSystem(), &view_->Capture(), full_screen_));
  layout->addWidget(keymap_.Panel());
  layout->addWidget(joystick_keymap_.Panel());
  layout->addWidget(frame_, 1);
  layout->addWidget(panel_);
  return centre;
}

void MainWindow::MakeToolBar() {
  tools_ = new MainToolBar({display_->Menu(), editor_->Switch(), lists_->LogShown(), lists_->EventsShown()}, this);
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

void MainWindow::ClearLog() { lists_->Log()->Clear(); }

void MainWindow::PauseMapping() { tools_->MappingOn()->setChecked(false); }

// A dock that the user asks for is shown in a small window, too.
void MainWindow::ShowEvents() { lists_->EventDock()->show(); }

void MainWindow::MakeEditor() {
  editor_ = new KeymapEditor(this, view_, lists_->LogDock());
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

void MainWindow::Tell(const QString& text, bool is_problem) { status_->Tell(text, is_problem); }

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) status_->TellAgain();
}

// Asks about unsaved edits and an unsaved recording. What is down is released while the recording still runs.
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

QString MainWindow::AskForKeymap(const QString& title, const ShownKeymap& before) {
  QString folder = QFileInfo(before.Path()).absolutePath();
  if (before.Path().isEmpty() && QFileInfo(QLatin1String(kExampleFolder)).isDir())
    folder = QLatin1String(kExampleFolder);
  const QString path = AskForFile(this, title, folder, QStringLiteral("Keymaps (*.yaml *.yml *.json);;All files (*)"));
  view_->setFocus();
  return path;
}

// Watched before it is read, so that no change is missed.
void MainWindow::LoadKeymap(const QString& path) {
  keymap_.Watch(path);
  mapping_.Read(path);
  keymap_.Take(mapping_.Keymap(), reserved_keys_);
  const tavikeymapmanager::LoadResult& in_use = mapping_.Keymap().InUse();
  name_ = in_use.name.isEmpty() ? QFileInfo(path).fileName() : in_use.name;
  records_->SetApp(in_use.name);
  ShowKeymaps();
  for (const QString& news : reserved_keys_.NewsOf(in_use.config.get())) Tell(news, true);
  editor_->Open(path, mapping_.Keymap().LastText());
  ShowTitle();  // in the editor's version from now on
}

void MainWindow::TellVanished(const ShownKeymap& keymap) {
  Tell(QStringLiteral("%1 was deleted; the keymap stays in use as it was last read").arg(keymap.FileName()), true);
  ShowKeymaps();
}

// Edits are shown at once, and used when editing ends.
void MainWindow::ShowEdited() {
  KeymapDocument* document = editor_->Document();
  if (keymap_.Path() != document->Path()) keymap_.Watch(document->Path());
  edited_.ReadText(document->Path(), document->Text());
  keymap_.Take(edited_, reserved_keys_);
  ShowKeymaps();
  const QString& name = document->Keymap().name;
  name_ = name.isEmpty() ? QFileInfo(document->Path()).fileName() : name;
  ShowTitle();
}

void MainWindow::ShowTitle() {
  const bool is_modified = editor_->Document()->IsModified();
  setWindowModified(false);  // a title without a placeholder must not find it in a name
  setWindowTitle(TitleOf({name_, mirrors_->TitlePart()}) + (is_modified ? QStringLiteral("[*]") : QString()));
  setWindowModified(is_modified);
}

void MainWindow::SetEditing(bool editing) {
  state_.SetEditing(editing);
  keymap_.Panel()->KeepHeight(editing ? DiagnosticsPanel::kEditingHeight : DiagnosticsPanel::kOwnHeight);
  DiagnosticsPanel* other = joystick_keymap_.Panel();
  other->KeepHeight(!editing ? DiagnosticsPanel::kOwnHeight : other->isHidden() ? 0 : other->height());
  finding_marks_->Cover(editing ? static_cast<QWidget*>(editor_->Layer()) : view_);
  ShowKeymaps();
}

void MainWindow::UseEdited(const QString& file) {
  LoadKeymap(file);
  ShowEdited();
}

void MainWindow::LoadJoystickKeymap(const QString& path) {
  joystick_keymap_.Watch(path);
  mapping_.ReadJoystick(path);
  joystick_keymap_.Take(mapping_.JoystickKeymap(), reserved_keys_);
  ShowKeymaps();
}

// What to do when the screen is empty.
QString MainWindow::Hint() const {
  const KeymapDocument* document = editor_->Document();
  const bool can_begin = document->ItemCount() == 0 && document->Refusal().isEmpty();
  if (editor_->IsOn() && can_begin) return QStringLiteral("No items yet. Right-click where you want the first one.");
  if (editor_->IsOn() || !keymap_.Path().isEmpty()) return {};
  return QStringLiteral("No keymap. The left mouse button is a finger; Open\u2026 loads a keymap.");
}

void MainWindow::ShowKeymaps() {
  view_->SetMarks(MergeMarks(keymap_.Marks(), joystick_keymap_.Marks()));
  finding_marks_->Show(keymap_.PlacedFindings() + joystick_keymap_.PlacedFindings());
  view_->SetHint(Hint());
  const bool has_keymap = !keymap_.Path().isEmpty() || editor_->IsOn();
  QStringList contents(has_keymap ? keymap_.Contents() : QStringLiteral("No keymap"));
  if (!joystick_keymap_.Path().isEmpty()) contents += QStringLiteral("gamepads: ") + joystick_keymap_.Contents();
  const QString paths = (keymap_.Path() + QLatin1Char('\n') + joystick_keymap_.Path()).trimmed();
  status_->ShowKeymaps(contents.join(QStringLiteral("  \u00B7  ")), paths);
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
  status_->ShowPads(pads_);
  const PadInput* pad = pads_.LastUsed();
  panel_->SetPad(pad ? std::make_optional(PictureOf(*pad)) : std::nullopt, pads_.LastUsedName());
}

void MainWindow::ShowState() {
  view_->SetOverlayDimmed(mapping_.IsPaused());
  status_->ShowState(state_.MappingWord());
}

}  // namespace tavi
