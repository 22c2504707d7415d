// Writes the initial inputs, from the tree's own examples: fuzz_make_seeds FOLDER. Creates a folder for each target
// there.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextStream>

#include "fuzz/event_code.h"
#include "host/simulation/script.h"

namespace taviinputmanager::fuzz {
namespace {

using Kind = tavi::ScriptCommand::Kind;

constexpr char kRecord[] = R"json({"info": {"package_name": "com.example.game", "resolution_x": 1280,
"resolution_y": 720, "create_time": 1577836800000, "total_running_time": 200}, "actions": [
{"timing": 0, "type": "vcontrol", "data": "{\"cmd\":\"detect_app\",\"params\":{\"app\":\"A\",\"package\":\"p\"}}"},
{"timing": 16, "type": "touch", "data": "press_rel:(0.5,0.25)", "extra1": "11", "extra2": ""},
{"timing": 16, "type": "touch", "data": "press_multi_rel:(0.1,0.2):(0.3,0.4)", "extra1": "18:19"},
{"timing": 16, "type": "touch", "data": "release_multi", "extra1": "18:19"},
{"timing": 16, "type": "touch", "data": "release", "extra1": "11"},
{"timing": 16, "type": "keyboard", "data": "keyboard_press:30"},
{"timing": 16, "type": "keyboard", "data": "keyboard_release:30"},
{"timing": 16, "type": "mouse", "data": "wheel:(0.5,0.5)"}, {"timing": 1, "type": "mouse", "data": "move:(0.1,0.9)"},
{"timing": 16, "type": "joystick", "data": "GPDBUTTON:304:1"},
{"timing": 16, "type": "input_method", "data": "text_inject:abc"}]})json";

constexpr char kMerged[] = R"json({"info": {"package_name": "p"}, "merged_actions": [
{"control": {"file_name": "a", "repeat_times": 3, "repeat_delay": 5, "speed_ratio": 2, "till_next_item_delay": 7},
 "actions": [{"timing": 4, "type": "keyboard", "data": "keyboard_press:30"}]},
{"control": {"repeat_times": 2}, "merged_actions": [{"actions": []},
 {"actions": [{"timing": 4, "type": "touch", "data": "reset"}]}]}]})json";

QByteArray Read(const QString& path) {
  QFile file(path);
  file.open(QIODevice::ReadOnly);
  return file.readAll();
}

QFileInfoList Files(const QString& folder, const QString& pattern) {
  return QDir(QStringLiteral(TAVI_SOURCE_DIR "/") + folder).entryInfoList({pattern}, QDir::Files, QDir::Name);
}

class Seeds {
 public:
  explicit Seeds(const QString& folder) : folder_(folder) {}

  void Add(const QString& target, const QByteArray& bytes) {
    QDir(folder_).mkpath(target);
    QFile file(QStringLiteral("%1/%2/seed%3").arg(folder_, target).arg(++count_));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
  }

 private:
  QString folder_;
  int count_ = 0;
};

void AddKeymaps(Seeds* seeds) {
  for (const char* folder : {"examples/keymaps", "tests/data/keymaps/good", "tests/data/keymaps/bad"}) {
    for (const QFileInfo& info : Files(folder, "*.yaml")) seeds->Add("keymap", Read(info.filePath()));
  }
}

void AddMacros(Seeds* seeds) {
  const QString text = QString::fromUtf8(Read(QStringLiteral(TAVI_SOURCE_DIR "/docs/macros.md")));
  auto match =
      QRegularExpression("```macro\n(.*?)```", QRegularExpression::DotMatchesEverythingOption).globalMatch(text);
  while (match.hasNext()) {
    const QString list = match.next().captured(1).trimmed();
    seeds->Add("macro", list.toUtf8());
    seeds->Add("macro", (list + "\n--\nrelease_all\n--\nkeyboard_switch:59\nsleep:2\n--\n" + list).toUtf8());
  }
}

void AddRecords(Seeds* seeds) {
  for (const char* how : {"0", "h", "\x8a"}) {
    seeds->Add("record", QByteArray(how) + kRecord);
    seeds->Add("record", QByteArray(how) + kMerged);
    seeds->Add("record_json", QByteArray(how) + kRecord);
    seeds->Add("record_json", QByteArray(how) + kMerged);
  }
  for (const QFileInfo& info : Files("examples/records", "*.json")) {
    seeds->Add("record_json", '0' + Read(info.filePath()));
  }
}

// The lines for the guest, without times and displays.
void AddLines(Seeds* seeds) {
  static const QRegularExpression line("^\\d+ms (?:text |\\d+:)(.*)$", QRegularExpression::MultilineOption);
  for (const QFileInfo& info : Files("examples/scripts", "*.timeline")) {
    QStringList lines;
    auto match = line.globalMatch(QString::fromUtf8(Read(info.filePath())));
    while (match.hasNext()) lines.append(match.next().captured(1));
    seeds->Add("translation", '0' + lines.join('\n').toUtf8());
  }
}

uint8_t PadNumber(const QString& name) {
  for (size_t i = 0; i < std::size(kPadNames); ++i) {
    if (name == QString::fromUtf8(kPadNames[i])) return static_cast<uint8_t>(i);
  }
  return 0;
}

uint8_t ButtonNumber(int button) {
  if (button == Qt::LeftButton) return 0;
  return button == Qt::RightButton ? 1 : 2;
}

EventCode Encode(const tavi::ScriptCommand& command) {
  const auto code = [](EventVerb verb, int a, int b, int c) {
    return EventCode{static_cast<uint8_t>(verb), static_cast<uint8_t>(a), static_cast<uint8_t>(b),
                     static_cast<uint8_t>(c)};
  };
  const int x = FromPixel(static_cast<int>(command.point.x()));
  const int y = FromPixel(static_cast<int>(command.point.y()));
  const int button = ButtonNumber(command.key.scancode);
  const int extended = command.key.scancode >> 8;
  switch (command.kind) {
    case Kind::kKeyDown: return code(EventVerb::kKeyDown, command.key.scancode, extended, 0);
    case Kind::kKeyRepeat: return code(EventVerb::kKeyRepeat, command.key.scancode, extended, 0);
    case Kind::kKeyUp: return code(EventVerb::kKeyUp, command.key.scancode, extended, 0);
    case Kind::kMouseDown: return code(EventVerb::kMouseDown, button, x, y);
    case Kind::kMouseUp: return code(EventVerb::kMouseUp, button, x, y);
    case Kind::kMove: return code(EventVerb::kMove, 0, x, y);
    case Kind::kWheel: return code(EventVerb::kWheel, command.number / 120, x, y);
    case Kind::kRelative: {
      return code(EventVerb::kRelative, 0, static_cast<int>(command.point.x()), static_cast<int>(command.point.y()));
    }
    case Kind::kTouchBegin: return code(EventVerb::kTouchBegin, command.touches.size(), x, y);
    case Kind::kTouchUpdate: return code(EventVerb::kTouchUpdate, command.touches.size(), x, y);
    case Kind::kTouchEnd: return code(EventVerb::kTouchEnd, 0, 0, 0);
    case Kind::kJoyDown: return code(EventVerb::kJoyDown, PadNumber(command.text), 0, 0);
    case Kind::kJoyUp: return code(EventVerb::kJoyUp, PadNumber(command.text), 0, 0);
    case Kind::kJoyAxis: {
      const QPointF axes = command.point * 127;
      return code(EventVerb::kJoyAxis, command.number, static_cast<int>(axes.x()), static_cast<int>(axes.y()));
    }
    case Kind::kWait: return code(EventVerb::kWaitLong, command.number / 16, 0, 0);
    case Kind::kReset: return code(EventVerb::kReset, command.flag, 0, 0);
    case Kind::kBack: return code(EventVerb::kBack, 0, 0, 0);
    default: return code(EventVerb::kInputMethod, 0, 2, 0);
  }
}

// Each verb with its first few numbers, in their order.
void AddVerbs(Seeds* seeds) {
  constexpr uint8_t kNumbers = 9;
  for (uint8_t verb = 0; verb < static_cast<uint8_t>(EventVerb::kCount); ++verb) {
    QByteArray bytes;
    for (uint8_t number = 0; number < kNumbers; ++number) {
      for (const EventCode code : {EventCode{verb, number, 1, 100}, EventCode{uint8_t(EventVerb::kWait), 9, 0, 0}}) {
        bytes.append(reinterpret_cast<const char*>(&code), sizeof code);
      }
    }
    seeds->Add("events", bytes);
  }
}

// Each script with each of the tree's keymaps, and with as many random ones.
void AddEvents(Seeds* seeds) {
  constexpr int kKeymaps = 6;
  constexpr int kAll = 2 * kKeymaps;
  for (const QFileInfo& info : Files("examples/scripts", "*.txt")) {
    const tavi::Script script = tavi::ParseScript(QString::fromUtf8(Read(info.filePath())));
    for (char keymap = 0; keymap < kAll; ++keymap) {
      QByteArray bytes;
      const EventVerb load = keymap < kKeymaps ? EventVerb::kKeymap : EventVerb::kOddKeymap;
      for (const EventVerb verb : {load, EventVerb::kJoymap}) {
        bytes.append(static_cast<char>(verb)).append(keymap).append('\0').append('\1');
      }
      for (const tavi::ScriptCommand& command : script.commands) {
        const EventCode code = Encode(command);
        bytes.append(reinterpret_cast<const char*>(&code), sizeof code);
      }
      seeds->Add("events", bytes);
    }
  }
}

}  // namespace
}  // namespace taviinputmanager::fuzz

int main(int argc, char** argv) {
  using namespace taviinputmanager::fuzz;
  const QCoreApplication application(argc, argv);
  if (argc != 2) {
    QTextStream(stderr) << "usage: fuzz_make_seeds FOLDER\n";
    return 2;
  }
  Seeds seeds(QString::fromLocal8Bit(argv[1]));
  AddKeymaps(&seeds);
  AddMacros(&seeds);
  AddRecords(&seeds);
  AddLines(&seeds);
  AddVerbs(&seeds);
  AddEvents(&seeds);
}
