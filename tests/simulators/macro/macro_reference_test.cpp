// The reference of the language is correct: its snippets are run.
#include <set>
#include <string>
#include <vector>

#include <QFile>

#include "keymap/macro_words.h"
#include "simulators/macro/macro_command.h"
#include "test_folders.h"
#include "tests/simulators/macro/macro_story.h"

namespace taviinputmanager {
namespace {

using tavikeymapmanager::kMacroWords;
using tavikeymapmanager::MacroVerb;

// The lines of each block that is fenced as a macro.
std::vector<QStringList> ReadSnippets() {
  QFile file(QStringLiteral(TAVI_SOURCE_DIR "/docs/macros.md"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  std::vector<QStringList> snippets;
  bool is_inside = false;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
    if (line == QLatin1String("```macro")) {
      snippets.emplace_back();
      is_inside = true;
    } else if (line.startsWith(QLatin1String("```"))) {
      is_inside = false;
    } else if (is_inside) {
      snippets.back().append(line);
    }
  }
  return snippets;
}

using MacroReference = MacroStory;

TEST_F(MacroReference, EverySnippetPlaysToItsEnd) {
  const auto snippets = ReadSnippets();
  EXPECT_FALSE(snippets.empty());
  for (const QStringList& snippet : snippets) {
    const std::string shown = snippet.join('\n').toStdString();
    for (const QString& command : snippet) EXPECT_TRUE(ParseMacroCommand(command)) << command.toStdString();
    Run(snippet + QStringList("text_inject:the end"));
    Play("wait 100; up F1; wait 5000");
    EXPECT_EQ(1, TakeWire().filter(QStringLiteral("TEXT:the end")).size()) << shown;
  }
}

TEST_F(MacroReference, EveryCommandHasASnippet) {
  std::set<MacroVerb> shown;
  for (const QStringList& snippet : ReadSnippets()) {
    for (const QString& text : snippet) {
      if (const auto command = ParseMacroCommand(text)) shown.insert(command->verb);
    }
  }
  for (const auto& row : kMacroWords) EXPECT_EQ(1u, shown.count(row.verb)) << row.word;
}

}  // namespace
}  // namespace taviinputmanager
