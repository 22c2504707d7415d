#include "host/command/keys_command.h"

#include <algorithm>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "host/command/command_line.h"
#include "host/command/key_rows.h"
#include "host/system/console.h"
#include "keymap/keywords.h"

namespace tavi {

namespace {

const QString kName = QStringLiteral("keys");

constexpr char kHelp[] =
    "Usage: tavi keys [OPTIONS] [FILTER]\n"
    "\n"
    "Lists every key that a keymap can name, with its codes on other systems. FILTER lists\n"
    "only the keys that contain it in their name, alias or Qt name, in upper or lower case.\n"
    "Write a key that is not listed by its scan code: \"Scan 200\".\n"
    "\n"
    "  --joystick    list the buttons, hat directions and sticks of gamepads instead\n"
    "  --json        print a JSON array of objects, for other programs\n"
    "\n"
    "The columns, \"-\" for a key without such a code:\n"
    "  NAME          as you write it in a keymap\n"
    "  ALIAS         another spelling that a keymap may use\n"
    "  SCAN          Windows scan code of set 1, with the extended bit as 256; for the\n"
    "                mouse, the code of the button or wheel direction\n"
    "  VK            Windows virtual key code\n"
    "  EVDEV         Linux key code, as input devices report it\n"
    "  X11           native key code of X11, and of Wayland's keyboard descriptions\n"
    "  QT            Qt::Key of a US layout, or Qt::MouseButton\n"
    "For a gamepad, HOST is the host's name for the button.\n"
    "\n"
    "Exit status: 0 when a key was listed, 1 when no key contains FILTER, 2 for a wrong\n"
    "command line.\n"
    "\n"
    "Example: tavi keys shift\n";

const QString kJoystick = QStringLiteral("--joystick");
const QString kJson = QStringLiteral("--json");

using Cells = QStringList;

QString NumberOrDash(int code) { return code == 0 ? QStringLiteral("-") : QString::number(code); }
QString TextOrDash(const QString& text) { return text.isEmpty() ? QStringLiteral("-") : text; }
QString HexOrDash(int code) {
  return code == 0 ? QStringLiteral("-") : QStringLiteral("0x%1").arg(code, 2, 16, QLatin1Char('0'));
}

Cells CellsOf(const KeyRow& row) {
  return {row.name,
          TextOrDash(row.aliases.join(QStringLiteral(", "))),
          NumberOrDash(row.mouse_code != 0 ? row.mouse_code : row.scancode),
          HexOrDash(row.virtual_key),
          NumberOrDash(row.linux_code),
          NumberOrDash(row.x11_code),
          TextOrDash(row.qt_key)};
}

// Each column is as wide as its widest cell; two spaces separate them.
QString TableText(const QVector<Cells>& table) {
  QVector<int> widths(table.first().size());
  for (const Cells& cells : table) {
    for (int i = 0; i < cells.size(); ++i) widths[i] = std::max<int>(widths[i], cells[i].size());
  }
  QString text;
  for (const Cells& cells : table) {
    QString line;
    for (int i = 0; i < cells.size(); ++i) line += cells[i].leftJustified(widths[i] + 2);
    while (line.endsWith(QLatin1Char(' '))) line.chop(1);
    text += line + QLatin1Char('\n');
  }
  return text;
}

QString KeyTable(const QVector<KeyRow>& rows, bool are_gamepads) {
  QVector<Cells> table;
  table += are_gamepads ? Cells{"NAME", "HOST"} : Cells{"NAME", "ALIAS", "SCAN", "VK", "EVDEV", "X11", "QT"};
  for (const KeyRow& row : rows) table += are_gamepads ? Cells{row.name, row.pad_text} : CellsOf(row);
  return TableText(table);
}

// Omits codes that a key does not have.
QJsonObject ObjectOf(const KeyRow& row) {
  QJsonObject object{{"name", row.name}, {"device", row.device}};
  if (!row.aliases.isEmpty()) object["aliases"] = QJsonArray::fromStringList(row.aliases);
  const struct {
    const char* name;
    int code;
  } codes[] = {{"scan_code", row.scancode},
               {"virtual_key", row.virtual_key},
               {"evdev_code", row.linux_code},
               {"x11_code", row.x11_code},
               {"mouse_code", row.mouse_code}};
  for (const auto& code : codes) {
    if (code.code != 0) object[QLatin1String(code.name)] = code.code;
  }
  if (!row.qt_key.isEmpty()) object["qt"] = row.qt_key;
  if (!row.pad_text.isEmpty()) object["host_name"] = row.pad_text;
  return object;
}

QString KeyJson(const QVector<KeyRow>& rows) {
  QJsonArray array;
  for (const KeyRow& row : rows) array += ObjectOf(row);
  return QString::fromUtf8(QJsonDocument(array).toJson());
}

bool Has(const KeyRow& row, const QString& filter) {
  const QStringList texts = QStringList{row.name, row.qt_key, row.pad_text} + row.aliases;
  return std::any_of(texts.begin(), texts.end(),
                     [&](const QString& text) { return text.contains(filter, Qt::CaseInsensitive); });
}

int Run(const Invocation& invocation) {
  const ParsedArguments parsed = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  if (!parsed.error.isEmpty()) return FailUsage(kName, parsed.error);
  if (parsed.positional.size() > 1) {
    return FailUsage(kName, QStringLiteral("more than one filter; write a name of several words in quotes"));
  }
  const bool are_gamepads = parsed.options.contains(kJoystick);
  const QString filter = parsed.positional.value(0);
  QVector<KeyRow> rows;
  for (const KeyRow& row : AllKeyRows()) {
    const bool is_of_gamepad = row.device == tavikeymapmanager::keywords::kDeviceJoystick;
    if (is_of_gamepad == are_gamepads && Has(row, filter)) rows += row;
  }
  if (parsed.options.contains(kJson)) {
    Print(KeyJson(rows));
  } else if (!rows.isEmpty()) {
    Print(KeyTable(rows, are_gamepads));
  }
  if (!rows.isEmpty()) return kExitDone;
  PrintError(QStringLiteral("tavi keys: no key has \"%1\" in its name\n").arg(filter));
  return kExitProblem;
}

}  // namespace

Subcommand KeysCommand() { return {"keys", "lists the names and codes of all keys", kHelp, Run}; }

}  // namespace tavi
