// File names with characters outside all code pages of the system, and names beyond the length limit of its calls.
#include <QDir>

#include "tests/support/program.h"

namespace tavi {
namespace {

constexpr char kTap[] = "format: 1\nitems:\n  - {type: Click, key: Space, point: [0.5, 0.5]}\n";
const QString kLongFolder = QString(200, QChar(0x6E38)) + QLatin1Char('/');

class Names : public Program {
 protected:
  Names() { QDir(Folder()).mkdir(kLongFolder); }
};

TEST_F(Names, OfKeymapsArePlain) {
  for (const QString& name : {QStringLiteral("\u043A\u043B\u0430\u0432\u0438\u0448\u0438"), QStringLiteral("\u9375"),
                              kLongFolder + QString(100, QLatin1Char('k'))}) {
    SCOPED_TRACE(name.toStdString());
    const QString keymap = name + ".yaml";
    Write(keymap, kTap);
    EXPECT_EQ(Run({"check", keymap}).output, keymap + ": 1 item\n");
    EXPECT_EQ(Run({"draw", "-o", name + ".svg", keymap}).errors, QString());
    EXPECT_EQ(Run({"draw", "-o", name + ".svg", keymap}).status, 0) << "over the one that is there";
    EXPECT_TRUE(Content(name + ".svg").contains("<svg"));
  }
}

TEST_F(Names, OfRecordsArePlain) {
  Write("tap.yaml", kTap);
  for (const QString& name : {QStringLiteral("\u6E38\u620F"), kLongFolder + QString(100, QLatin1Char('r'))}) {
    SCOPED_TRACE(name.toStdString());
    const QString record = name + ".json";
    const Outcome played = Run({"simulate", "--record", record, "--svg", name + ".svg", "tap.yaml", "-"},
                               "down Space; wait 50; up Space\n");
    EXPECT_EQ(played.status, 0) << played.errors.toStdString();
    EXPECT_TRUE(Has(name + ".svg"));
    EXPECT_EQ(Run({"record", "info", record}).status, 0);
    EXPECT_TRUE(Run({"record", "play", record}).output.contains("SLOTPRESS"));
    EXPECT_EQ(Run({"record", "merge", "-o", name + "2.json", record, record}).errors, QString());
    EXPECT_EQ(Run({"record", "draw", "-o", name + "2.svg", name + "2.json"}).errors, QString());
    EXPECT_TRUE(Has(name + "2.svg"));
  }
}

// Lines are UTF-8 and end in LF, as on every system.
TEST_F(Names, ArePrintedAsUtf8) {
  const QString name = QStringLiteral("\u9375.yaml");
  Write(name, "format: 1\nitems: [\n");
  const QString printed = Run({"check", name}).output;
  EXPECT_TRUE(printed.startsWith(name + ":")) << printed.toStdString();
  EXPECT_FALSE(printed.contains('\r'));
}

}  // namespace
}  // namespace tavi
