// A host with a matching function of its own, which overrides the keymap library's: the state of Escape depends on it.
#include "handlers/keymap_origin.h"
#include "keymap/tavikeymapmanager.h"
#include "tests/support/story.h"

namespace tavikeymapmanager {

namespace {

// The arguments, "1 by 48": the scan codes of both keys; "-" for a key that is not set.
QStringList asked;
QStringList answered_with_yes;

QString NameOf(const ConfigKey& key) { return IsKeySet(key) ? QString::number(key.scancode) : QStringLiteral("-"); }

// The query for Escape has no virtual key, so its key is not set.
QString CodeOf(const ConfigKey& key) { return key.scancode == 1 ? QStringLiteral("1") : NameOf(key); }

}  // namespace

bool isConfigKeyMatch(KeymapConfig* config, ConfigKey* configured, ConfigKey* pressed) {
  EXPECT_NE(nullptr, config);
  const QString question = CodeOf(*configured) + " by " + CodeOf(*pressed);
  asked.append(question);
  return answered_with_yes.contains(question);
}

}  // namespace tavikeymapmanager

namespace taviinputmanager {
namespace {

using tavikeymapmanager::answered_with_yes;
using tavikeymapmanager::asked;
using tavikeymapmanager::ConfigItem;

class EscapeByTheHost : public Story {
 protected:
  EscapeByTheHost() { Host().table.OnMappedDeviceUsed = nullptr; }
  void LoadAnew() {
    Load();
    asked.clear();
    Forget();
  }
  static std::string Asked() { return std::exchange(asked, {}).join(", ").toStdString(); }
};

TEST_F(EscapeByTheHost, IsToldFromTheLibrarys) { EXPECT_FALSE(IsKeyMatchOwn()); }

// B has the scan code 48.
TEST_F(EscapeByTheHost, IsAskedAboutTheArmedKeyBothWays) {
  LoadAnew();
  Play("down B");
  EXPECT_EQ("1 by 48, 48 by 1", Asked());
  EXPECT_CALLS("0ms escape_occupied 0");
  Play("up B");
  EXPECT_EQ("1 by -", Asked());
  EXPECT_CALLS("0ms escape_occupied 0");
}

TEST_F(EscapeByTheHost, DecidesAgainstTheItems) {
  Add<ConfigItem>("Click", "Escape", {0.5, 0.5});
  LoadAnew();
  Play("down B; up B");
  EXPECT_CALLS("0ms escape_occupied 0", "0ms escape_occupied 0");
}

TEST_F(EscapeByTheHost, DecidesForAKeymapWithoutItems) {
  LoadAnew();
  answered_with_yes = QStringList{"48 by 1"};
  Play("down B");
  EXPECT_CALLS("0ms escape_occupied 1");
  Play("up B");
  EXPECT_CALLS("0ms escape_occupied 0");
  answered_with_yes = QStringList{"1 by -"};
  Play("down B; up B");
  EXPECT_CALLS("0ms escape_occupied 0", "0ms escape_occupied 1");
}

TEST_F(EscapeByTheHost, IsAskedOnceWhereTheFirstAnswerIsYes) {
  LoadAnew();
  answered_with_yes = QStringList{"1 by 48"};
  Play("down B");
  EXPECT_EQ("1 by 48", Asked());
  EXPECT_CALLS("0ms escape_occupied 1");
}

// The guest gets Escape in any case, but the query comes first.
TEST_F(EscapeByTheHost, IsAskedAlsoWhereTheGuestGetsEscape) {
  Settings().keyboard_transparent = true;
  Settings().escape_to_guest = true;
  LoadAnew();
  Play("down B");
  EXPECT_EQ("1 by 48, 48 by 1", Asked());
  EXPECT_CALLS("0ms escape_occupied 1");
}

}  // namespace
}  // namespace taviinputmanager
