// File names with characters outside all code pages of Windows, and paths beyond the length limit of its calls.
#include <QRegularExpression>

#include "tests/support/odd_names.h"
#include "tests/support/program.h"

namespace tavi {
namespace {

constexpr char kTap[] = "format: 1\nitems:\n  - {type: Click, key: Space, point: [0.5, 0.5]}\n";
constexpr char kPad[] = "format: 1\nitems:\n  - {type: Click, key: A, point: [0.5, 0.5]}\n";
constexpr char kSvg[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg ";
constexpr char kPng[] = "\x89PNG";

class Names : public Program {
 protected:
  Names() { qputenv("XDG_RUNTIME_DIR", Folder().toUtf8()); }  // Qt warns if there is none

  // A command line in which "%1" is the beginning of all names.
  static QStringList Named(const char* line, const QString& name) {
    QStringList words = QString(line).split(' ');
    for (QString& word : words) word.replace("%1", name);
    return words;
  }
  // Without what Qt says about windows without a screen.
  static QString Problems(Outcome outcome) {
    static const QRegularExpression from_qt("This plugin does not support propagateSizeHints\\(\\)\r?\n");
    return outcome.errors.remove(from_qt);
  }
  QByteArray ContentIfAny(const QString& name) const {
    return name.isEmpty() || !Has(name) ? QByteArray() : Content(name);
  }
};

TEST_F(Names, MayBeOddInEachCommand) {
  const struct {
    const char* line;
    const char* prints;
    const char* writes;  // a file, and how it begins
    const char* begins;
  } rows[] = {
      {"check %1.yaml", "%1.yaml: 1 item\n", "", ""},
      {"draw -o %1.png %1.yaml", "", "%1.png", kPng},
      {"draw -o %1.svg --background %1.png --joystick %1.pad %1.yaml", "", "%1.svg", kSvg},
      {"draw -o %1.svg %1.yaml", "", "%1.svg", kSvg},  // over the one that is there
      {"simulate --svg %1.time.svg --record %1.json %1.yaml %1.txt", "SLOTPRESS", "%1.time.svg", kSvg},
      {"record info %1.json", "com.example.game", "", ""},
      {"record play %1.json", "SLOTPRESS", "", ""},
      {"record merge -o %1.all.json %1.json %1.json", "", "%1.all.json", "{"},
      {"record merge -o %1.all.json %1.all.json %1.json", "", "%1.all.json", "{"},  // over its own part
      {"record draw -o %1.paths.svg %1.all.json", "", "%1.paths.svg", kSvg},
      {"window --fresh --joystick %1.pad --background %1.png --replay %1.json --picture %1.seen.png --after 1 %1.yaml",
       "", "%1.seen.png", kPng},
  };
  for (const QString& name : OddNames(Folder())) {
    Write(name + ".yaml", kTap);
    Write(name + ".pad", kPad);
    Write(name + ".txt", "down Space; wait 50; up Space\n");
    for (const auto& row : rows) {
      SCOPED_TRACE(row.line);
      const QString written = QString(row.writes).replace("%1", name);
      const QByteArray before = ContentIfAny(written);
      const Outcome outcome = Run(Named(row.line, name));
      EXPECT_EQ(outcome.status, 0);
      EXPECT_EQ(Problems(outcome).toStdString(), "");
      EXPECT_TRUE(outcome.output.contains(QString(row.prints).replace("%1", name))) << outcome.output.toStdString();
      if (written.isEmpty()) continue;
      EXPECT_TRUE(Content(written).startsWith(row.begins));
      EXPECT_NE(Content(written), before);
    }
  }
}

// Lines are UTF-8 and end in LF, on every system.
TEST_F(Names, ArePrintedAsUtf8) {
  const QString name = QStringLiteral("\u9375.yaml");
  Write(name, "format: 1\nitems: [\n");
  const QString printed = Run({"check", name}).output;
  EXPECT_TRUE(printed.startsWith(name + ":")) << printed.toStdString();
  EXPECT_FALSE(printed.contains('\r'));
}

}  // namespace
}  // namespace tavi
