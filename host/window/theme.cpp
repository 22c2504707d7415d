#include "host/window/theme.h"

#include <QApplication>
#include <QFont>
#include <QFontDatabase>
#include <QPalette>
#include <QStyleFactory>

namespace tavi::theme {

namespace {

// Neighbouring slots are far apart on the colour wheel.
constexpr int kHueStep = 137;
constexpr int kFirstHue = 28;

constexpr int kLogTextHeight = 12;

}  // namespace

QColor SlotColor(int slot) { return QColor::fromHsv((kFirstHue + slot * kHueStep) % 360, 150, 255); }

QFont MonospaceFont() {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPixelSize(kLogTextHeight);
  return font;
}

void Apply(QApplication* application) {
  application->setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  QPalette palette;
  palette.setColor(QPalette::Window, kPanel);
  palette.setColor(QPalette::WindowText, kText);
  palette.setColor(QPalette::Base, kGuestEdge);
  palette.setColor(QPalette::AlternateBase, kPanel);
  palette.setColor(QPalette::Text, kText);
  palette.setColor(QPalette::Button, kPanel.lighter(125));
  palette.setColor(QPalette::ButtonText, kText);
  palette.setColor(QPalette::ToolTipBase, kPanelLine);
  palette.setColor(QPalette::ToolTipText, kText);
  palette.setColor(QPalette::PlaceholderText, kFaintText);
  palette.setColor(QPalette::Highlight, kTap.darker(150));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, kTap);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, kFaintText.darker(150));
  }
  application->setPalette(palette);
}

}  // namespace tavi::theme
