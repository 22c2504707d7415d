// `tavi draw` as users start it.
#include <QImage>
#include <QXmlStreamReader>

#include "tests/support/program.h"

namespace tavi {
namespace {

// The key is in the middle, and an item without a point is in the list.
constexpr char kKeymap[] =
    "format: 1\n"
    "name: Two & more\n"
    "items:\n"
    "  - {type: Click, label: Jump, key: Space, point: [0.5, 0.5]}\n"
    "  - {type: Macro, label: Wave, key: X, press_commands: [sleep:5]}\n";

class DrawProgram : public Program {
 protected:
  void SetUp() override { Write("keymap.yaml", kKeymap); }

  QImage Picture(const QString& name) { return QImage(Folder() + QLatin1Char('/') + name); }

  // Title and the number of elements with shapes.
  struct Page {
    QString title;
    QString width;
    int shapes = 0;
    int images = 0;
  };

  Page ReadPage(const QString& name) {
    Page page;
    QXmlStreamReader xml(Content(name));
    while (!xml.atEnd()) {
      if (xml.readNext() != QXmlStreamReader::StartElement) continue;
      if (xml.name() == QLatin1String("svg")) page.width = xml.attributes().value("width").toString();
      if (xml.name() == QLatin1String("path")) ++page.shapes;
      if (xml.name() == QLatin1String("image")) ++page.images;
      EXPECT_NE(xml.name(), QLatin1String("text")) << "letters of the viewer";
      if (xml.name() == QLatin1String("title")) page.title = xml.readElementText();
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return page;
  }
};

// The plain background is #171b24; the plate of a key, #0b0e14, is darker.
bool IsKeyAt(const QImage& picture, const QPoint& place) { return picture.pixelColor(place).blue() < 0x20; }

TEST_F(DrawProgram, APngHasTheKeyWhereItActs) {
  const Outcome outcome = Run({"draw", "-o", "out.png", "keymap.yaml"});
  EXPECT_EQ(outcome.status, 0) << outcome.errors.toStdString();
  EXPECT_EQ(outcome.output, QString());
  const QImage picture = Picture("out.png");
  ASSERT_EQ(picture.size(), QSize(1280, 720));
  // Text of 16 pixels on a plate about 1.35 times its line's height: 6 above the middle is between letters and edge.
  EXPECT_TRUE(IsKeyAt(picture, {640, 351}));
  EXPECT_FALSE(IsKeyAt(picture, {640, 300}));
}

TEST_F(DrawProgram, KeysGrowWithThePicture) {
  EXPECT_EQ(Run({"draw", "-o", "out.png", "--size", "2560x1440", "keymap.yaml"}).status, 0);
  const QImage picture = Picture("out.png");
  ASSERT_EQ(picture.size(), QSize(2560, 1440));
  EXPECT_TRUE(IsKeyAt(picture, {1280, 702}));  // twice as far from the middle
}

TEST_F(DrawProgram, AnSvgCallsTheKeymapByItsName) {
  EXPECT_EQ(Run({"draw", "-o", "OUT.SVG", "--size", "640x360", "keymap.yaml"}).status, 0);
  const Page page = ReadPage("OUT.SVG");
  EXPECT_EQ(page.title, QStringLiteral("Two & more"));
  EXPECT_EQ(page.width, QStringLiteral("640.0"));
}

// An item without a point is in the list: the picture then has more shapes.
TEST_F(DrawProgram, ItemsWithoutAPlaceAreListed) {
  Write("one.yaml",
        "format: 1\n"
        "items:\n"
        "  - {type: Click, label: Jump, key: Space, point: [0.5, 0.5]}\n");
  ASSERT_EQ(Run({"draw", "-o", "one.svg", "one.yaml"}).status, 0);
  ASSERT_EQ(Run({"draw", "-o", "two.svg", "keymap.yaml"}).status, 0);
  // A plate with its edge, its letter, the outline of its label and the label.
  EXPECT_EQ(ReadPage("two.svg").shapes, ReadPage("one.svg").shapes + 5);
  EXPECT_EQ(ReadPage("one.svg").title, QStringLiteral("one.yaml"));
}

TEST_F(DrawProgram, TheKeysOfAGamepadComeBesides) {
  Write("pad.yaml",
        "format: 1\n"
        "items:\n"
        "  - {type: Click, label: Jump, key: Pad A, point: [0.5, 0.5]}\n");
  ASSERT_EQ(Run({"draw", "-o", "one.svg", "keymap.yaml"}).status, 0);
  ASSERT_EQ(Run({"draw", "-o", "two.svg", "--joystick", "pad.yaml", "keymap.yaml"}).status, 0);
  // A plate with its edge and its letters; the label is the same.
  EXPECT_EQ(ReadPage("two.svg").shapes, ReadPage("one.svg").shapes + 3);
}

// Without a size the picture is as large as its background.
TEST_F(DrawProgram, ABackgroundGivesTheSize) {
  QImage red(500, 300, QImage::Format_RGB32);
  red.fill(Qt::red);
  ASSERT_TRUE(red.save(Folder() + "/red.png"));
  ASSERT_EQ(Run({"draw", "-o", "out.png", "--background", "red.png", "keymap.yaml"}).status, 0);
  const QImage picture = Picture("out.png");
  EXPECT_EQ(picture.size(), red.size());
  EXPECT_EQ(picture.pixelColor(499, 0), QColor(Qt::red));
  ASSERT_EQ(Run({"draw", "-o", "out.svg", "--background", "red.png", "--size", "100x80", "keymap.yaml"}).status, 0);
  EXPECT_EQ(ReadPage("out.svg").images, 1);
  EXPECT_EQ(ReadPage("out.svg").width, QStringLiteral("100.0"));
}

TEST_F(DrawProgram, RefusesWhatItCannotUse) {
  Write("bad.yaml", "format: 1\nitems: [{type: Click, key: Spcae, point: [0.5, 0.5]}]\n");
  Write("text.png", "no picture\n");
  const struct {
    const char* name = "";
    QStringList arguments;
    int status = 0;
    const char* error = "";
  } rows[] = {
      {"no keymap", {"-o", "a.png"}, 2, "tavi draw: one keymap is needed\n"},
      {"no output", {"keymap.yaml"}, 2, "tavi draw: -o PICTURE is missing\n"},
      {"another format",
       {"-o", "a.gif", "keymap.yaml"},
       2,
       "tavi draw: -o needs a name that ends in .svg or .png, not \"a.gif\"\n"},
      {"no size",
       {"-o", "a.png", "--size", "wide", "keymap.yaml"},
       2,
       "tavi draw: --size needs a size such as 1280x720, not \"wide\"\n"},
      {"a broken keymap", {"-o", "a.png", "bad.yaml"}, 2, "bad.yaml:2:28: error: "},
      {"a broken keymap of gamepads",
       {"-o", "a.png", "--joystick", "bad.yaml", "keymap.yaml"},
       2,
       "bad.yaml:2:28: error: "},
      {"no background", {"-o", "a.png", "--background", "none.png", "keymap.yaml"}, 2, "none.png: cannot be read: "},
      {"a background that is none",
       {"-o", "a.png", "--background", "text.png", "keymap.yaml"},
       2,
       "text.png: cannot be read: "},
      {"nowhere to write", {"-o", "none/a.png", "keymap.yaml"}, 1, "tavi draw: cannot write none/a.png: "},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const Outcome outcome = Run(QStringList("draw") + row.arguments);
    EXPECT_EQ(outcome.status, row.status);
    EXPECT_TRUE(outcome.errors.contains(QLatin1String(row.error))) << outcome.errors.toStdString();
    EXPECT_FALSE(Has("a.png"));
  }
}

}  // namespace
}  // namespace tavi
