#include "host/look/theme.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>

#include "host/look/switch_style.h"
#include "host/look/theme_news.h"

namespace tavi::theme {

namespace {

// Neighbouring slots are far apart on the colour wheel.
constexpr int kHueStep = 137;
constexpr int kFirstHue = 28;

constexpr int kLogTextHeight = 12;
constexpr int kMiddle = 128;  // lightness

const char* const kNames[] = {"desktop", "light", "dark"};

const ColorSet* current = nullptr;  // null: dark
Look current_look = Look::kDesktop;

bool IsDesktopLight() {
  static const bool is_light = QGuiApplication::palette().color(QPalette::Window).lightness() >= kMiddle;
  return is_light;
}

QPalette PaletteOf(const ColorSet& colors) {
  QPalette palette(colors.button, colors.panel);
  palette.setColor(QPalette::WindowText, colors.text);
  palette.setColor(QPalette::Base, colors.base);
  palette.setColor(QPalette::AlternateBase, colors.panel);
  palette.setColor(QPalette::Text, colors.text);
  palette.setColor(QPalette::ButtonText, colors.text);
  palette.setColor(QPalette::ToolTipBase, colors.panel_line);
  palette.setColor(QPalette::ToolTipText, colors.text);
  palette.setColor(QPalette::PlaceholderText, colors.faint_text);
  palette.setColor(QPalette::Highlight, colors.selection);
  palette.setColor(QPalette::HighlightedText, colors.selected_text);
  palette.setColor(QPalette::Link, colors.tap);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colors.faint_text);
  }
  return palette;
}

}  // namespace

const ColorSet& Dark() {
  static const ColorSet colors = [] {
    ColorSet dark;
    dark.backdrop = QColor(0x0D, 0x0F, 0x14);
    dark.guest = QColor(0x17, 0x1B, 0x24);
    dark.guest_edge = QColor(0x10, 0x13, 0x1A);
    dark.panel = QColor(0x1B, 0x1F, 0x29);
    dark.panel_line = QColor(0x2C, 0x32, 0x40);
    dark.button = QColor(0x22, 0x27, 0x33);
    dark.base = dark.guest_edge;
    dark.plate = QColor(0x0B, 0x0E, 0x14, 0xE0);
    dark.text = QColor(0xE6, 0xEA, 0xF2);
    dark.faint_text = QColor(0x96, 0xA0, 0xB4);
    dark.label = QColor(0xCD, 0xD4, 0xE0);
    dark.tap = QColor(0x5B, 0xC8, 0xD8);
    dark.walk = QColor(0x8B, 0xD4, 0x7A);
    dark.view = QColor(0xF2, 0xC1, 0x5B);
    dark.cast = QColor(0xB9, 0x9B, 0xFF);
    dark.macro = QColor(0xF0, 0x8C, 0xB8);
    dark.error = QColor(0xFF, 0x7B, 0x72);
    dark.warning = dark.view;
    dark.on_lit = dark.backdrop;
    dark.switch_on = QColor(0x2B, 0x4A, 0x55);
    dark.selection = QColor(0x2F, 0x74, 0x80);
    dark.selected_text = Qt::white;
    dark.grid = QColor(0xFF, 0xFF, 0xFF, 0x0C);
    dark.finger_saturation = 150;
    dark.finger_value = 255;
    return dark;
  }();
  return colors;
}

const ColorSet& Light() {
  static const ColorSet colors = [] {
    ColorSet light;
    light.backdrop = QColor(0xDD, 0xE2, 0xEA);
    light.guest = QColor(0xF6, 0xF8, 0xFB);
    light.guest_edge = QColor(0xE9, 0xED, 0xF3);
    light.panel = QColor(0xF2, 0xF4, 0xF8);
    light.panel_line = QColor(0xDD, 0xE1, 0xE8);
    light.button = QColor(0xE8, 0xEB, 0xF1);
    light.base = Qt::white;
    light.plate = QColor(0xFF, 0xFF, 0xFF, 0xE8);
    light.text = QColor(0x1B, 0x1F, 0x29);
    light.faint_text = QColor(0x52, 0x5B, 0x6B);
    light.label = QColor(0x2E, 0x35, 0x42);
    light.tap = QColor(0x0B, 0x64, 0x72);
    light.walk = QColor(0x2C, 0x6A, 0x1E);
    light.view = QColor(0x7A, 0x52, 0x00);
    light.cast = QColor(0x5E, 0x3D, 0xB8);
    light.macro = QColor(0x9A, 0x2C, 0x66);
    light.error = QColor(0xB3, 0x26, 0x1E);
    light.warning = light.view;
    light.on_lit = Qt::white;
    light.switch_on = QColor(0xBC, 0xDA, 0xE1);
    light.selection = light.tap;
    light.selected_text = Qt::white;
    light.grid = QColor(0x00, 0x00, 0x00, 0x10);
    light.finger_saturation = 220;
    light.finger_value = 120;
    return light;
  }();
  return colors;
}

const ColorSet& Colors() { return current ? *current : Dark(); }

QString NameOf(Look look) { return QLatin1String(kNames[static_cast<int>(look)]); }

bool ParseLook(const QString& name, Look* look) {
  for (const Look each : {Look::kDesktop, Look::kLight, Look::kDark}) {
    if (name != NameOf(each)) continue;
    *look = each;
    return true;
  }
  return false;
}

// The desktop's palette must be read before it is replaced.
void Apply(QApplication* application, Look look) {
  const bool is_light = IsDesktopLight() ? look != Look::kDark : look == Look::kLight;
  current = is_light ? &Light() : &Dark();
  current_look = look;
  application->setStyle(new SwitchStyle);
  application->setPalette(PaletteOf(*current));
  Q_EMIT ThemeNews::GetInstance()->Changed();
}

Look CurrentLook() { return current_look; }

void Follow(QObject* owner, const std::function<void()>& take) {
  take();
  QObject::connect(ThemeNews::GetInstance(), &ThemeNews::Changed, owner, take);
}

QColor SlotColor(int slot) {
  const ColorSet& colors = Colors();
  return QColor::fromHsv((kFirstHue + slot * kHueStep) % 360, colors.finger_saturation, colors.finger_value);
}

QFont MonospaceFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(kLogTextHeight);
  return font;
}

}  // namespace tavi::theme
