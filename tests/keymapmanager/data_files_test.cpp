// Every file in tests/data/keymaps begins with the reader's expected diagnostics: "# expect line:column message" lines.
#include <QDir>
#include <QFile>

#include "test_folders.h"
#include "tests/keymapmanager/keymap_text.h"

namespace tavikeymapmanager {
namespace {

const QString kFolder = QStringLiteral(TAVI_SOURCE_DIR "/tests/data/keymaps/");

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

std::string ExpectedOf(const QByteArray& text) {
  const QByteArray mark = "# expect ";
  QStringList lines;
  for (const QByteArray& line : text.split('\n')) {
    if (line.startsWith(mark)) lines += QString::fromUtf8(line.mid(mark.size()));
  }
  return lines.join(QLatin1Char('\n')).toStdString();
}

void CheckFolder(const QString& folder, bool is_usable) {
  const QStringList names = QDir(kFolder + folder).entryList({QStringLiteral("*.yaml")}, QDir::Files, QDir::Name);
  ASSERT_FALSE(names.isEmpty());
  for (const QString& name : names) {
    SCOPED_TRACE(name.toStdString());
    const QString path = kFolder + folder + QLatin1Char('/') + name;
    const LoadResult result = ReadKeymapFile(path);
    EXPECT_EQ(ExpectedOf(ContentOf(path)), Said(result));
    EXPECT_EQ(is_usable, !result.HasErrors());
    EXPECT_TRUE(is_usable || result.config->items.isEmpty());
    for (const Diagnostic& diagnostic : result.diagnostics) EXPECT_EQ(path, diagnostic.file);
  }
}

TEST(DataFiles, GoodOnesAreUsed) { CheckFolder(QStringLiteral("good"), true); }
TEST(DataFiles, BadOnesAreRefusedWithEveryMistake) { CheckFolder(QStringLiteral("bad"), false); }
TEST(DataFiles, BrokenOnesAreRefused) { CheckFolder(QStringLiteral("broken"), false); }

TEST(DataFiles, ExamplesAreUsedWithoutAWord) {
  const QDir folder(QStringLiteral(TAVI_SOURCE_DIR "/examples/keymaps"));
  const QStringList names = folder.entryList({QStringLiteral("*.yaml")}, QDir::Files);
  ASSERT_GE(names.size(), 3);
  for (const QString& name : names) EXPECT_EQ("", Said(ReadKeymapFile(folder.filePath(name)))) << name.toStdString();
}

TEST(DataFiles, AJsonFileIsReadToo) {
  const LoadResult result = ReadKeymapFile(kFolder + QStringLiteral("good/written_as.json"));
  EXPECT_EQ("", Said(result));
  EXPECT_EQ("A JSON file, indented by tabs", result.name.toStdString());
  EXPECT_EQ("Mouse_AllButton_Transparent", result.config->settings->mouse_mode.toStdString());
  ASSERT_EQ(2, result.config->items.size());
  const auto* macro = dynamic_cast<const MacroConfigItem*>(result.config->items[1]);
  ASSERT_NE(nullptr, macro);
  EXPECT_EQ(QStringList(QStringLiteral("text_inject:a/b\u00e9")), macro->press_commands);
}

TEST(DataFiles, AJsonFileThatIsCutOffIsRefused) {
  const LoadResult result = ReadKeymapFile(kFolder + QStringLiteral("broken/cut_off.json"));
  EXPECT_TRUE(result.HasErrors());
  EXPECT_EQ(1, result.diagnostics.size());
}

TEST(DataFiles, NumbersAreThoseOfYaml12) {
  const LoadResult result = ReadKeymapFile(kFolder + QStringLiteral("good/numbers.yaml"));
  EXPECT_EQ("2048", result.name.toStdString());
  EXPECT_EQ(10, result.config->settings->relative_interval_ms);  // 010 is decimal
  EXPECT_EQ(0.001, result.config->settings->relative_factor);
  EXPECT_TRUE(result.config->settings->wheel_transparent);
  EXPECT_EQ(15, result.config->wheel_settings->zoom_notch_ticks);  // 0o17 is octal
  EXPECT_EQ(31, result.config->wheel_settings->zoom_spread);
  EXPECT_EQ(-0.5, result.config->wheel_settings->zoom_angle);
  EXPECT_EQ(16, result.config->wheel_settings->zoom_first_interval_ms);  // 16.0 is whole
  ASSERT_EQ(2, result.config->items.size());
  EXPECT_EQ(0.5, result.config->items[0]->rel_x);
  EXPECT_EQ(1.0, result.config->items[0]->rel_y);
  EXPECT_EQ("7", result.config->items[1]->key.text.toStdString());
}

}  // namespace
}  // namespace tavikeymapmanager
