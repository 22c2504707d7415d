#include "keymapmanager/keys/foreign_key_names.h"

#include <QRegularExpression>

namespace tavikeymapmanager {

namespace {

struct ForeignName {
  const char* word;  // in lower case, without blanks, hyphens and underscores
  const char* name;
};

constexpr ForeignName kForeignNames[] = {
    {"ctrl", "Left Ctrl"},
    {"control", "Left Ctrl"},
    {"lctrl", "Left Ctrl"},
    {"rctrl", "Right Ctrl"},
    {"shift", "Left Shift"},
    {"lshift", "Left Shift"},
    {"rshift", "Right Shift"},
    {"alt", "Left Alt"},
    {"lalt", "Left Alt"},
    {"ralt", "Right Alt"},
    {"altgr", "Right Alt"},
    {"option", "Left Alt"},
    {"win", "Left Win"},
    {"windows", "Left Win"},
    {"lwin", "Left Win"},
    {"rwin", "Right Win"},
    {"super", "Left Win"},
    {"meta", "Left Win"},
    {"cmd", "Left Win"},
    {"command", "Left Win"},
    {"esc", "Escape"},
    {"spacebar", "Space"},
    {"tilde", "Grave"},
    {"~", "Grave"},
    {"backtick", "Grave"},
    {"backquote", "Grave"},
    {"dot", "Period"},
    {"fullstop", "Period"},
    {"hyphen", "Minus"},
    {"dash", "Minus"},
    {"quote", "Apostrophe"},
    {"colon", "Semicolon"},
    {"+", "Equals"},
    {"plus", "Equals"},
    {"capslk", "Caps Lock"},
    {"prtsc", "Print Screen"},
    {"printscr", "Print Screen"},
    {"pgup", "Page Up"},
    {"pageup", "Page Up"},
    {"prior", "Page Up"},
    {"pgdn", "Page Down"},
    {"pgdown", "Page Down"},
    {"pagedn", "Page Down"},
    {"next", "Page Down"},
    {"uparrow", "Up"},
    {"arrowup", "Up"},
    {"downarrow", "Down"},
    {"arrowdown", "Down"},
    {"leftarrow", "Left"},
    {"arrowleft", "Left"},
    {"rightarrow", "Right"},
    {"arrowright", "Right"},
    {"apps", "Menu"},
    {"contextmenu", "Menu"},
    {"lmb", "Mouse Left"},
    {"leftclick", "Mouse Left"},
    {"leftmouse", "Mouse Left"},
    {"mouse1", "Mouse Left"},
    {"rmb", "Mouse Right"},
    {"rightclick", "Mouse Right"},
    {"rightmouse", "Mouse Right"},
    {"mouse2", "Mouse Right"},
    {"mmb", "Mouse Middle"},
    {"middleclick", "Mouse Middle"},
    {"middlemouse", "Mouse Middle"},
    {"mouse3", "Mouse Middle"},
    {"mouse4", "Mouse Side 1"},
    {"mouse5", "Mouse Side 2"},
    {"scrollup", "Wheel Up"},
    {"mousewheelup", "Wheel Up"},
    {"scrolldown", "Wheel Down"},
    {"mousewheeldown", "Wheel Down"},
};

}  // namespace

QString KeyNameFromElsewhere(const QString& word) {
  static const QRegularExpression parting(QStringLiteral("[\\s_-]"));
  const QString folded = word.toLower().remove(parting);
  for (const ForeignName& row : kForeignNames) {
    if (folded == QLatin1String(row.word)) return QString::fromLatin1(row.name);
  }
  return {};
}

}  // namespace tavikeymapmanager
