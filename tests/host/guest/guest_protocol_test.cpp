// The document of the lines matches the lines.
#include <gtest/gtest.h>

#include <QFile>

#include "core/guest_words.h"
#include "host/guest/guest_line.h"
#include "test_folders.h"

namespace tavi {
namespace {

namespace words = taviinputmanager::guest_words;

QString Document() {
  QFile file(QStringLiteral(TAVI_SOURCE_DIR "/docs/guest-protocol.md"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return QString::fromUtf8(file.readAll());
}

// The content of the blocks marked "guest".
QStringList Examples() {
  QStringList examples;
  bool is_inside = false;
  for (const QString& line : Document().split('\n')) {
    if (line.startsWith("```")) {
      is_inside = line == QLatin1String("```guest");
    } else if (is_inside) {
      examples += line;
    }
  }
  return examples;
}

GuestLine Parse(const QString& example) {
  return ParseGuestLine(example.startsWith("TEXT") ? example : SplitDisplay(example).line);
}

TEST(GuestProtocol, EveryExampleIsUnderstood) {
  for (const QString& example : Examples()) {
    EXPECT_NE(Parse(example).kind, GuestLine::Kind::kUnknown) << example.toStdString();
  }
}

TEST(GuestProtocol, EveryWordHasAnExample) {
  QStringList seen;
  for (const QString& example : Examples()) seen += example.split(':');
  for (const QLatin1String word : {words::kSlotPress,
                                   words::kSlotRelease,
                                   words::kSlotReleaseAll,
                                   words::kSlotMultiPress,
                                   words::kSlotMultiRelease,
                                   words::kKeyPress,
                                   words::kKeyRelease,
                                   words::kMouseMove,
                                   words::kWheel,
                                   words::kWheelWithDelta,
                                   words::kText,
                                   words::kTextControl,
                                   words::kLeftStickAxis,
                                   words::kRightStickAxis,
                                   words::kLeftTriggerAxis,
                                   words::kRightTriggerAxis,
                                   words::kGamepadButton,
                                   words::kHatX,
                                   words::kHatY,
                                   words::kTouchpadLightTouch,
                                   words::kTouchpadPress,
                                   words::kTouchpadRelease}) {
    EXPECT_TRUE(seen.contains(word)) << word.data();
  }
}

}  // namespace
}  // namespace tavi
