#include "host/command/guest_uinput_command.h"

#include <algorithm>
#include <string>
#include <vector>

#include <QFile>

#include "guest/program/guest_program.h"
#include "host/command/command_line.h"
#include "host/system/console.h"

namespace tavi {

namespace {

constexpr char kName[] = "guest-uinput";
constexpr taviguest::ProgramPage kPage = {
    "tavi guest-uinput",
    "a touch screen, a keyboard, a pointer, a gamepad and a touchpad. It prints where\n"
    "they are and keeps them until the lines end. To the computer's own desktop, their\n"
    "input looks like that of its user.\n",
    "",
    "echo \"down Space; wait 50; up Space\" |\n"
    "           tavi simulate examples/keymaps/shooter.yaml - |\n"
    "           tavi guest-uinput --timeline --dry-run\n"};

const char* Help() {
  static const std::string page = taviguest::HelpPage(kPage);
  return page.c_str();
}

// The original arguments without the program's own options. An option and its value are two arguments.
std::vector<std::string> WordsOf(const ParsedArguments& arguments, const QVector<OptionRule>& rules) {
  std::vector<std::string> words;
  const auto add = [&words](const QString& word) { words.push_back(QFile::encodeName(word).toStdString()); };
  for (const GivenArgument& given : arguments.in_order) {
    if (!given.option.isEmpty()) add(given.option);
    const auto is_rule = [&given](const OptionRule& rule) { return rule.name == given.option && rule.takes_value; };
    if (given.option.isEmpty() || std::any_of(rules.begin(), rules.end(), is_rule)) add(given.value);
  }
  return words;
}

int Run(const Invocation& invocation) {
  const QVector<OptionRule> rules = OptionsOf(Help());
  const ParsedArguments arguments = ParseArguments(invocation.arguments, rules);
  if (!arguments.error.isEmpty()) return FailUsage(QLatin1String(kName), arguments.error);
  taviguest::ProgramOptions options = taviguest::ReadProgramOptions(WordsOf(arguments, rules));
  if (!options.error.empty()) return FailUsage(QLatin1String(kName), QFile::decodeName(options.error.c_str()));
  options.guest.has_gamepad = true;
  options.guest.has_touchpad = true;
  return taviguest::RunGuestProgram(kPage.name, options);
}

}  // namespace

Subcommand GuestUinputCommand() { return {kName, "plays guest lines on kernel input devices", Help(), Run}; }

}  // namespace tavi
