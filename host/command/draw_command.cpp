#include "host/command/draw_command.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>

#include "host/command/command_line.h"
#include "host/picture/keymap_picture.h"
#include "host/picture/picture_file.h"
#include "host/session/keymap_report.h"
#include "host/system/console.h"
#include "host/system/window_system.h"
#include "keymapmanager/keymap_file.h"
#include "qt/fonts.h"

namespace tavi {

namespace {

const QString kName = QStringLiteral("draw");

constexpr char kHelp[] =
    "Usage: tavi draw -o PICTURE [OPTIONS] KEYMAP\n"
    "\n"
    "Draws a keymap as a picture, for a wiki or a manual: each key at the point where it\n"
    "acts on the guest's screen, with the label its author gave it, and a list of the keys\n"
    "that act at no particular point.\n"
    "\n"
    "  -o PICTURE         the file to write; its name must end in .svg or .png. \"-\" writes\n"
    "                     SVG to standard output\n"
    "  --size WxH         size of the picture in pixels, each side from 1 to 16384 (the size\n"
    "                     of the background, or 1280x720)\n"
    "  --background FILE  a picture to draw on, such as a screenshot of the game; it is\n"
    "                     stretched to the whole size\n"
    "  --joystick FILE    a gamepad keymap, whose buttons are drawn too\n"
    "\n"
    "The letters of an SVG picture are outlines, so that it looks the same everywhere.\n"
    "\n"
    "Exit status: 0 when the picture was written, 1 when it cannot be written, 2 when a\n"
    "keymap, the background or the command line cannot be used.\n"
    "\n"
    "Example: tavi draw -o shooter.svg examples/keymaps/shooter.yaml\n";

const QString kOutput = QStringLiteral("-o");
const QString kSize = QStringLiteral("--size");
const QString kBackground = QStringLiteral("--background");
const QString kJoystick = QStringLiteral("--joystick");

constexpr QSize kDefaultSize(1280, 720);

enum class Format { kNone, kSvg, kPng };

struct DrawOptions {
  QString keymap;
  QString joystick_keymap;  // empty: none
  QString output;
  Format format = Format::kNone;
  QSize size;          // empty: the size of the background
  QString background;  // empty: none
};

Format FormatOf(const QString& name) {
  if (name == QLatin1String(kStandardStream)) return Format::kSvg;
  const QString suffix = QFileInfo(name).suffix().toLower();
  if (suffix == QLatin1String("svg")) return Format::kSvg;
  return suffix == QLatin1String("png") ? Format::kPng : Format::kNone;
}

// Returns the error, or an empty string.
QString ReadOptions(const ParsedArguments& parsed, DrawOptions* options) {
  if (!parsed.error.isEmpty()) return parsed.error;
  if (parsed.positional.size() != 1) return QStringLiteral("one keymap is needed");
  options->keymap = parsed.positional[0];
  options->joystick_keymap = parsed.options.value(kJoystick);
  options->background = parsed.options.value(kBackground);
  options->output = parsed.options.value(kOutput);
  if (options->output.isEmpty()) return QStringLiteral("-o PICTURE is missing");
  options->format = FormatOf(options->output);
  if (options->format == Format::kNone) {
    return QStringLiteral("-o needs a name that ends in .svg or .png, not \"%1\"").arg(options->output);
  }
  return TakeSize(parsed.Find(kSize), &options->size);
}

// Adds the keymap's marks. Uses its name if the picture has none yet.
bool AddKeymap(const QString& path, KeymapDrawing* drawing) {
  const tavikeymapmanager::LoadResult keymap = tavikeymapmanager::ReadKeymapFile(path);
  PrintError(FormatDiagnostics(keymap));
  if (keymap.HasErrors()) return false;
  if (drawing->title.isEmpty()) drawing->title = keymap.name.isEmpty() ? QFileInfo(path).fileName() : keymap.name;
  drawing->marks = MergeMarks(drawing->marks, MarksOf(keymap));
  return true;
}

bool TakeBackground(const QString& path, KeymapDrawing* drawing) {
  QImageReader reader(path);
  reader.setAutoTransform(true);
  drawing->background = reader.read();
  if (!drawing->background.isNull()) return true;
  PrintError(QStringLiteral("%1: cannot be read: %2\n").arg(path, reader.errorString()));
  return false;
}

QSize SizeOf(const DrawOptions& options, const QImage& background) {
  if (!options.size.isEmpty()) return options.size;
  return background.isNull() ? kDefaultSize : background.size();
}

int Draw(const DrawOptions& options) {
  KeymapDrawing drawing;
  if (!AddKeymap(options.keymap, &drawing)) return kExitUsage;
  if (!options.joystick_keymap.isEmpty() && !AddKeymap(options.joystick_keymap, &drawing)) return kExitUsage;
  if (!options.background.isEmpty() && !TakeBackground(options.background, &drawing)) return kExitUsage;
  drawing.size = SizeOf(options, drawing.background);
  if (qt::FontFamilies().isEmpty()) {
    PrintError(QStringLiteral("tavi draw: there are no fonts to write the keys with (Debian: fonts-dejavu-core)\n"));
    return kExitProblem;
  }
  const bool is_svg = options.format == Format::kSvg;
  const QByteArray picture = is_svg ? DrawKeymapAsSvg(drawing) : DrawKeymapAsPng(drawing);
  if (!picture.isEmpty()) return WritePicture(kName, options.output, picture);
  PrintError(QStringLiteral("tavi draw: there is not enough memory for a picture of this size\n"));
  return kExitProblem;
}

int Run(const Invocation& invocation) {
  DrawOptions options;
  const ParsedArguments parsed = ParseArguments(invocation.arguments, OptionsOf(kHelp));
  const QString problem = ReadOptions(parsed, &options);
  if (!problem.isEmpty()) return FailUsage(kName, problem);
  DoWithoutWindowSystem();
  const QGuiApplication application(invocation.argc, invocation.argv);
  return Draw(options);
}

}  // namespace

Subcommand DrawCommand() { return {"draw", "draws a keymap as a picture", kHelp, Run}; }

}  // namespace tavi
