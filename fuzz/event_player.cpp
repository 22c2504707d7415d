#include "fuzz/event_player.h"

#include <exception>

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "fuzz/fuzz_keymaps.h"
#include "fuzz/session.h"
#include "host/simulation/simulated_host.h"
#include "keymap/joystick_event.h"
#include "qt/touch_events.h"
#include "tests/support/keymap_source.h"

namespace taviinputmanager::fuzz {

using tavikeymapmanager::JoystickEvent;

namespace {

constexpr int kDisplays = 4;
constexpr int kNotch = 120;
constexpr int kTask = 1;
constexpr int kGamepad = 1;

const QString kKeymapPath = QStringLiteral("fuzz.yaml");  // one text for all loads: each new path would be stored

// A wait at the end of a click on the back key: a second click within that time keeps the first one's press.
constexpr int kBackClickMs = 8;

constexpr char kRecordText[] = R"json({"info": {"package_name": "com.example.game", "resolution_x": 1280},
"actions": [{"timing": 0, "type": "vcontrol", "data": "{\"params\":{\"app\":\"A\",\"package\":\"p\"}}"},
{"timing": 4, "type": "touch", "data": "press_rel:(0.5,0.5)", "extra1": "2"},
{"timing": 4, "type": "touch", "data": "press_multi_rel:(0.1,0.1):(0.2,0.2)", "extra1": "3:4"},
{"timing": 4, "type": "keyboard", "data": "keyboard_press:30"},
{"timing": 4, "type": "joystick", "data": "GPDBUTTON:304:1"}, {"timing": 4, "type": "mouse", "data": "move:(0.3,0.3)"},
{"timing": 4, "type": "input_method", "data": "text_inject:a"},
{"timing": 4, "type": "touch", "data": "release_multi", "extra1": "3:4"},
{"timing": 4, "type": "touch", "data": "release", "extra1": "2"}],
"control": {"repeat_times": 3, "repeat_delay": 10}})json";

int8_t Signed(uint8_t byte) { return static_cast<int8_t>(byte); }
QPointF PointOf(const EventCode& code) { return {qreal(ToPixel(code.b)), qreal(ToPixel(code.c))}; }
QString Name(uint8_t byte) { return QString::number(byte % 4); }

// Keyboards have no codes in the upper half: it repeats the keys that keymaps use.
quint32 ScanCode(uint8_t byte) {
  constexpr quint32 kUsual[] = {17, 30, 31, 32, 33, 57, 16, 18, 41, 1, 42, 59};  // W A S D F Space Q E Grave Esc ...
  return byte < 0x80 ? byte : kUsual[byte % std::size(kUsual)];
}

Qt::MouseButton ButtonOf(uint8_t byte) {
  constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::RightButton,   Qt::MiddleButton,
                                          Qt::BackButton, Qt::ForwardButton, Qt::NoButton};
  return kButtons[byte % std::size(kButtons)];
}

QString PadName(uint8_t byte) { return QString::fromUtf8(kPadNames[byte % std::size(kPadNames)]); }

QString Text(uint8_t byte) {
  static const QStringList texts = {"a", "", "hello", "\n", QString::fromUtf8("ä€😀"), QString(1, QChar(0xD800)), ":"};
  return texts[byte % texts.size()];
}

// Sets the optional members of a table to null, according to the bits of a number.
void Thin(InputManagerCallbacks* table, unsigned bits) {
  if (bits & 0x1) table->GetJoystickType = nullptr;
  if (bits & 0x2) table->OnEscapeKeyOccupied = nullptr;
  if (bits & 0x4) table->OnMappedDeviceUsed = nullptr;
  if (bits & 0x8) table->OnOperationRecorderStarted = nullptr;
  if (bits & 0x10) table->SetGravity = nullptr;
  if (bits & 0x20) table->IsPrimaryDisplay = nullptr;
  if (bits & 0x40) table->OnMouseLockSwitch = nullptr;
  if (bits & 0x80) table->OnVirtualJoystickChanged = nullptr;
  if (bits & 0x100) table->OnScreenshotRequest = nullptr;
}

tavi::VirtualEventDispatcher& Time() { return Session::Get().Time(); }
tavi::SimulatedHost& Host() { return Session::Get().Host(); }

}  // namespace

EventPlayer::EventPlayer()
    : record_(Session::Get().FilePath("given.record")), recorded_(Session::Get().FilePath("recorded.record")) {
  Session::WriteFile(record_, kRecordText);
  Session::WriteFile(recorded_, kRecordText);
}

// The table of this player is about to be destroyed.
EventPlayer::~EventPlayer() { Initialize(&Host().table, 0, 0); }

void EventPlayer::Play(const EventCode& code) {
  switch (VerbOf(code)) {
    case EventVerb::kWait: return Time().Advance(code.a);
    case EventVerb::kWaitLong: return Time().Advance(code.a * 16);
    case EventVerb::kRecord: PlayRecord(code); break;
    case EventVerb::kCapture: PlayCapture(code); break;
    case EventVerb::kReplay: PlayReplay(code); break;
    case EventVerb::kRecordFile: PlayRecordFile(code); break;
    case EventVerb::kSync: PlaySync(code); break;
    case EventVerb::kRaw: PlayRaw(code); break;
    case EventVerb::kHost: ChangeHost(code); break;
    default: PlayInput(code); break;
  }
  Time().Settle();
}

// ---- Events ----

void EventPlayer::PlayInput(const EventCode& code) {
  switch (VerbOf(code)) {
    case EventVerb::kKeyDown:
    case EventVerb::kKeyRepeat: return PlayKey(QEvent::KeyPress, code);
    case EventVerb::kKeyUp: return PlayKey(QEvent::KeyRelease, code);
    case EventVerb::kMouseDown: return PlayMouse(QEvent::MouseButtonPress, code);
    case EventVerb::kMouseUp: return PlayMouse(QEvent::MouseButtonRelease, code);
    case EventVerb::kMouseDouble: return PlayMouse(QEvent::MouseButtonDblClick, code);
    case EventVerb::kMove: return PlayMouse(QEvent::MouseMove, code);
    case EventVerb::kWheel: return PlayWheel(code);
    case EventVerb::kRelative: return OnWindowsWmRelativeInputEvent(Signed(code.b), Signed(code.c));
    case EventVerb::kTouchBegin: return PlayTouch(QEvent::TouchBegin, code);
    case EventVerb::kTouchUpdate: return PlayTouch(QEvent::TouchUpdate, code);
    case EventVerb::kTouchEnd: return PlayTouch(QEvent::TouchEnd, code);
    case EventVerb::kJoyDown:
    case EventVerb::kJoyUp: {
      const bool is_down = VerbOf(code) == EventVerb::kJoyDown;
      JoystickButtonEvent event(is_down ? JoystickEvent::ButtonPress : JoystickEvent::ButtonRelease, PadName(code.a), 0,
                                kGamepad);
      return OnJoystickEvent(&event);
    }
    case EventVerb::kJoyAxis: {
      JoystickAxisEvent event(JoystickEvent::AxisTriggle, Signed(code.b) / 127.0, Signed(code.c) / 127.0, code.a % 3,
                              kGamepad);
      return OnJoystickEvent(&event);
    }
    case EventVerb::kInputMethod: {
      QInputMethodEvent event(code.a & 1 ? Text(code.b) : QString(), {});
      if (!(code.a & 1)) event.setCommitString(Text(code.b));
      return OnQtInputEvent(&event);
    }
    default: return PlayState(code);
  }
}

void EventPlayer::PlayKey(QEvent::Type type, const EventCode& code) {
  const bool is_repeat = VerbOf(code) == EventVerb::kKeyRepeat;
  const quint32 scan_code = code.b & 1 ? code.a | 0x100U : ScanCode(code.a);
  const Qt::KeyboardModifiers modifiers = code.c & 1 ? Qt::ShiftModifier : Qt::NoModifier;
  QKeyEvent event(type, code.c & 2 ? Qt::Key_A : 0, modifiers, scan_code, code.c & 4 ? 0x41 : 0, 0,
                  code.c & 8 ? Text(code.c >> 4) : QString(), is_repeat);
  OnQtInputEvent(&event);
}

void EventPlayer::PlayMouse(QEvent::Type type, const EventCode& code) {
  const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : ButtonOf(code.a);
  buttons_.setFlag(button, type != QEvent::MouseButtonRelease);
  Time().SetPointer(PointOf(code).toPoint());
  QMouseEvent event(type, PointOf(code), PointOf(code), button, buttons_, Qt::NoModifier);
  OnQtInputEvent(&event);
}

void EventPlayer::PlayWheel(const EventCode& code) {
  const QPoint delta(0, (Signed(code.a) % 4) * kNotch);
  Time().SetPointer(PointOf(code).toPoint());
  QWheelEvent event(PointOf(code), PointOf(code), {}, delta, buttons_, Qt::NoModifier, Qt::NoScrollPhase, false);
  OnQtInputEvent(&event);
}

void EventPlayer::PlayTouch(QEvent::Type type, const EventCode& code) {
  QList<qt::TouchPoint> points;
  for (int i = 0; i < code.a % 16; ++i) {
    const auto state = static_cast<Qt::TouchPointState>(1 << ((code.a >> 4) + i) % 4);
    points.append(qt::MakeTouchPoint((i * 3 + code.a / 16) % 32, state, PointOf(code) + QPointF(i, i) * 17));
  }
  QTouchEvent event = qt::MakeTouchEvent(type, Qt::NoModifier, points);
  OnQtInputEvent(&event);
}

// ---- Configuration and state ----

void EventPlayer::PlayState(const EventCode& code) {
  int x = ToPixel(code.b);
  int y = ToPixel(code.c);
  switch (VerbOf(code)) {
    case EventVerb::kReset: return OnResetInputStatus(code.a & 1, code.b & 1 ? display_ : 0);
    case EventVerb::kDisplay: return UpdateDisplayId(display_ = code.a % kDisplays);
    case EventVerb::kKeymap:
    case EventVerb::kOddKeymap: return LoadKeymap(code);
    case EventVerb::kJoymap:
      test::SetNextJoystickKeymap(MakeKeymap(code.a));
      return OnLoadJoystickConfigAndInfo(kKeymapPath, 0);
    case EventVerb::kBack: doBackAction(display_); return Time().Advance(kBackClickMs);
    case EventVerb::kTransparent: return UpdateDisplayForceTransparent(code.a % kDisplays, code.b & 1);
    case EventVerb::kMousePosition: return UpdateMousePosition(x, y);
    case EventVerb::kConvert: return ConvertWindowPositionToAndroid(x, y);
    case EventVerb::kSensitivity: return SetHandyStaringSensitivity(code.b / 100.0, code.c / 100.0);
    case EventVerb::kInitialize: return InitializeAgain(code);
    default:
      GetInputStatus();
      GetRecordStatus();
      isInputHoldWhenWindowDeactivate();
      SetInputEventSyncFunc(nullptr);
      SetInputTextSyncFunc(nullptr);
      return;
  }
}

void EventPlayer::LoadKeymap(const EventCode& code) {
  static const QStringList packages = {"com.example.game", "", "com.android.settings", "app.lawnchair"};
  const bool is_odd = VerbOf(code) == EventVerb::kOddKeymap;
  test::SetNextKeymap(is_odd ? MakeOddKeymap(code.a | code.b << 8 | code.c << 16) : MakeKeymap(code.a));
  display_ = code.c % kDisplays;
  OnLoadKeymapConfigAndInfo(code.b & 4 ? QString() : kKeymapPath, packages[code.b & 3], {}, display_);
}

void EventPlayer::ChangeHost(const EventCode& code) {
  const int sizes[] = {0, 1, 720, 1280, 1920, 40000, -5, 333};
  const QSize size(sizes[code.b % 8], sizes[code.c % 8]);
  const QPoint corner(code.b & 64 ? -300 : 0, code.c & 64 ? 200 : 0);
  switch (code.a % 9) {
    case 0: Host().window = {corner.x(), corner.y(), size.width(), size.height()}; return;
    case 1: Host().display = QRect(corner, size); return;
    case 2: Host().touch = QRect(corner, size); return;
    case 3: Host().rotation = 90 * (code.b % 5); return;
    case 4: Host().text_input = code.b & 1; return;
    case 5: Host().escape_back = code.b & 1; return;
    case 6: Host().joystick_type = code.b % 6; return;
    case 7: Host().primary_display = code.b % kDisplays; return;
    default: Time().SetPointer(PointOf(code).toPoint()); return;
  }
}

// A host that starts again. An empty keymap is loaded for display 0.
void EventPlayer::InitializeAgain(const EventCode& code) {
  table_ = Host().table;
  Thin(&table_, code.a | (code.b & 1U) << 8);
  Initialize(code.c & 1 ? nullptr : &table_, code.a, code.b);
  display_ = 0;
}

// ---- Recording and replay ----

void EventPlayer::PlayRecord(const EventCode& code) {
  switch (code.a % 6) {
    case 0: return StartRecord("com.example.game", "Game");
    case 1: return PauseRecord();
    case 2: return ResumeRecord();
    case 3: return StopRecord("com.example.game", recorded_);
    case 4: return AddVControlCommand(Text(code.b), Name(code.c), Text(code.c));
    default: return InitializeRecordCallbacks(nullptr);
  }
}

void EventPlayer::PlayCapture(const EventCode& code) {
  switch (code.a % 3) {
    case 0: return StartRecordMacroInstruction(Name(code.b));
    case 1: return StopRecordMacroInstruction(Name(code.b));
    default: getRecordMacroInstruction(Name(code.b)); return;
  }
}

void EventPlayer::PlayReplay(const EventCode& code) {
  const ReplayParam param{code.b / 64.0, (code.c & 1) != 0};
  switch (code.a % 9) {
    case 0:
      // A second replay of a file would leave the first one's handle open, as with any host.
      if (!is_replaying_) StartReplay(0, kTask, {}, record_, param);
      is_replaying_ = true;
      return;
    case 1: return PauseReplay(kTask, record_);
    case 2: return ResumeReplay(kTask, record_);
    case 3: return RestartReplay(kTask, record_, param);
    case 4:
      StopReplay(kTask, record_, code.b & 1);
      Time().Settle();
      is_replaying_ = false;
      return;
    case 5:
      StopAllReplay();
      Time().Settle();
      is_replaying_ = false;
      return;
    case 6: return UpdateReplayDisplayId(Session::kReplayDisplay + (code.b & 1));
    case 7: return StopReplay(kTask + 1, record_, true);
    default: return InitializeReplayCallbacks(nullptr);
  }
}

void EventPlayer::PlayRecordFile(const EventCode& code) {
  const QString& file = code.b & 1 ? record_ : recorded_;
  QString app;
  QString package;
  RecordInfo info;
  switch (code.a % 4) {
    case 0: GetRecordInfo(file, &info); return;
    case 1: return GetScriptAppAndPackage(file, app, package);
    case 2: try { UpdateRecordTimestamp(file);
      } catch (const std::exception&) {
        return;  // the parser's exceptions, which are not caught
      }
      return;
    default:
      MergeRecord(Session::Get().FilePath("merged.record"), {{file, code.b % 4, code.c, 1.0, code.c}, {record_}});
      return;
  }
}

// ---- Mirroring and ready lines ----

void EventPlayer::PlaySync(const EventCode& code) {
  if (code.a % 3 == 0) return StartSync(Name(code.b), {}, {});
  if (code.a % 3 == 1) return StopSync(Name(code.b));
  PauseSync(Name(code.b));
}

void EventPlayer::PlayRaw(const EventCode& code) {
  static const QStringList lines = {"SLOTPRESS:2:2:1:1:3:4\n", "\n", "KBDPR:30:1\n", "nonsense\n", "SLOTRELEASEALL\n"};
  if (code.a & 1) return OnInputRawTextData(code.b & 1 ? QString("TEXT:a\n") : QString());
  OnInputRawEventData(lines[code.b % lines.size()], Session::kRawDisplay);
}

}  // namespace taviinputmanager::fuzz
