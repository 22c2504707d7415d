// The colours of the window: all text is legible.
#include "host/look/theme.h"

#include <cmath>

#include <QLabel>
#include <QPainter>
#include <QStyleOption>

#include "host/guest/guest_model.h"
#include "host/look/switch_style.h"
#include "tests/host/window/window_fixture.h"

namespace tavi {
namespace {

using theme::ColorSet;
using theme::Look;

constexpr double kLeast = 4.5;

// The relative luminance of sRGB.
double Linear(double part) { return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4); }
double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}
double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one) + 0.05;
  const double b = Luminance(other) + 0.05;
  return qMax(a, b) / qMin(a, b);
}

void ExpectReadable(const QColor& text, const QColor& ground, const char* set) {
  EXPECT_GE(Contrast(text, ground), kLeast)
      << set << ": " << text.name().toStdString() << " on " << ground.name().toStdString();
}

void ExpectAllReadable(const ColorSet& colors, const char* set) {
  for (const QColor& text : colors.Texts()) {
    for (const QColor& ground : colors.Grounds()) ExpectReadable(text, ground, set);
  }
  for (const QColor& lit : colors.Lit()) ExpectReadable(colors.on_lit, lit, set);
  ExpectReadable(colors.text, colors.switch_on, set);
  ExpectReadable(colors.selected_text, colors.selection, set);
}

// Black on white is 21 to 1.
TEST(Theme, EachTextCanBeReadOnEachGround) {
  ASSERT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  ExpectAllReadable(theme::Dark(), "dark");
  ExpectAllReadable(theme::Light(), "light");
}

class ThemeTest : public WindowFixture {
 protected:
  void Take(Look look) {
    theme::Apply(qApp, look);
    clock_->Settle();
  }
  QColor Ground() const { return Window()->grab().toImage().pixelColor(2, Window()->height() - 2); }
};

TEST_F(ThemeTest, TheNumberOfAFingerCanBeRead) {
  for (const Look look : {Look::kDark, Look::kLight}) {
    Take(look);
    for (int slot = 0; slot < kGuestSlotCount; ++slot) {
      ExpectReadable(theme::Colors().on_lit, theme::SlotColor(slot), "finger");
    }
  }
}

TEST_F(ThemeTest, TheWholeWindowFollows) {
  Load("{type: Click, key: Spcae, point: [0.5, 0.5]}");
  for (const Look look : {Look::kDark, Look::kLight}) {
    Take(look);
    const ColorSet& colors = look == Look::kDark ? theme::Dark() : theme::Light();
    EXPECT_EQ(&theme::Colors(), &colors);
    EXPECT_EQ(Window()->palette().color(QPalette::Window), colors.panel);
    EXPECT_EQ(Ground(), colors.panel);
    int coloured = 0;
    for (const QLabel* label : Window()->findChildren<QLabel*>()) {
      if (label->text().contains(colors.error.name())) ++coloured;
    }
    EXPECT_EQ(coloured, 3);  // the title and the line of the diagnostic, and the state at the bottom
  }
}

TEST_F(ThemeTest, LooksHaveNames) {
  for (const Look look : {Look::kDesktop, Look::kLight, Look::kDark}) {
    Look read = Look::kDesktop;
    EXPECT_TRUE(theme::ParseLook(theme::NameOf(look), &read));
    EXPECT_EQ(read, look);
  }
  Look read = Look::kDark;
  EXPECT_FALSE(theme::ParseLook("grey", &read));
}

// Its middle is that of an unchecked switch, whether it is hovered or not.
TEST_F(ThemeTest, ASwitchThatWasJustTurnedOffLooksOff) {
  Take(Look::kDark);
  const SwitchStyle style;
  const auto middle = [&style](QStyle::State state) {
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(theme::Colors().panel);
    QPainter painter(&image);
    QStyleOption option;
    option.rect = image.rect();
    option.state = QStyle::State_Enabled | state;
    style.drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter);
    return image.pixelColor(20, 10);
  };
  const QColor off = middle(QStyle::State_Off);
  EXPECT_EQ(middle(QStyle::State_Off | QStyle::State_MouseOver | QStyle::State_Raised), off);
  EXPECT_EQ(middle(QStyle::State_On), theme::Colors().switch_on);
  EXPECT_NE(middle(QStyle::State_On), off);
}

}  // namespace
}  // namespace tavi
