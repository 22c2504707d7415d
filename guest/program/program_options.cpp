#include "guest/program/program_options.h"

#include <string_view>

#include "guest/line/numbers.h"

namespace taviguest {

namespace {

// Each reads the option's value and returns the error ("a number, not"), or an empty string.
using Taker = const char* (*)(const std::string& value, ProgramOptions* options);

const char* TakeInput(const std::string& value, ProgramOptions* options) {
  options->input = value;
  return nullptr;
}

const char* TakeListen(const std::string& value, ProgramOptions* options) {
  options->listen = ReadListenAddress(value);
  return options->listen ? nullptr : "tcp:PORT or unix:PATH";
}

int ReadSide(std::string_view text) {
  const int side = ReadWholeNumber(text).value_or(0);
  return side <= kLongestSide ? side : 0;
}

const char* TakeSize(const std::string& value, ProgramOptions* options) {
  const size_t cross = value.find('x');
  const std::string_view text = value;
  const int width = ReadSide(text.substr(0, cross));
  const int height = cross == std::string::npos ? 0 : ReadSide(text.substr(cross + 1));
  if (width < 1 || height < 1) return "a size such as 1280x720";
  options->guest.surface = {width, height};
  return nullptr;
}

const char* TakeDisplay(const std::string& value, ProgramOptions* options) {
  options->guest.display = ReadWholeNumber(value);
  return options->guest.display ? nullptr : "a number";
}

bool IsName(const std::string& text) {
  for (const char character : text) {
    if (static_cast<unsigned char>(character) < ' ') return false;
  }
  return !text.empty() && text.size() <= kMostNameBytes;
}

const char* TakeName(const std::string& value, ProgramOptions* options) {
  options->guest.name = value;
  return IsName(value) ? nullptr : "a name of 1 to 60 bytes";
}

const char* TakeSystem(const std::string& value, ProgramOptions* options) {
  options->guest.system = value == "android" ? GuestSystem::kAndroid : GuestSystem::kLinux;
  return value == "android" || value == "linux" ? nullptr : "android or linux";
}

struct ValueOption {
  std::string_view name;
  Taker take;
};

struct FlagOption {
  std::string_view name;
  bool ProgramOptions::*option;
  bool GuestOptions::*guest_option;
};

constexpr ValueOption kValueOptions[] = {
    {"--input", TakeInput},     {"--listen", TakeListen}, {"--size", TakeSize},
    {"--display", TakeDisplay}, {"--name", TakeName},     {"--for", TakeSystem},
};

constexpr FlagOption kFlagOptions[] = {
    {"--timeline", &ProgramOptions::is_timeline, nullptr},
    {"--dry-run", &ProgramOptions::is_dry_run, nullptr},
    {"--help", &ProgramOptions::is_help, nullptr},
    {"-h", &ProgramOptions::is_help, nullptr},
    {"--keyboard", nullptr, &GuestOptions::has_full_keyboard},
    {"--gamepad", nullptr, &GuestOptions::has_gamepad},
    {"--touchpad", nullptr, &GuestOptions::has_touchpad},
};

template <typename Option, size_t N>
const Option* Find(const Option (&options)[N], std::string_view name) {
  for (const Option& option : options) {
    if (option.name == name) return &option;
  }
  return nullptr;
}

std::string Quoted(std::string_view text) { return '"' + std::string(text) + '"'; }

// Reads the words from left to right, up to the first error.
class WordReader {
 public:
  explicit WordReader(const std::vector<std::string>& words) : words_(words) {}

  ProgramOptions Read() {
    while (next_ < words_.size() && result_.error.empty()) TakeWord(words_[next_++]);
    if (result_.error.empty() && result_.listen && !result_.input.empty()) {
      result_.error = "use --input or --listen, not both";
    }
    return result_;
  }

 private:
  void TakeWord(const std::string& word) {
    if (word.size() < 2 || word[0] != '-') return Fail(Quoted(word) + " is not an option");
    const size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    if (const ValueOption* option = Find(kValueOptions, name)) return TakeValue(*option, word, equals);
    const FlagOption* flag = Find(kFlagOptions, name);
    if (!flag) return Fail("unknown option " + Quoted(name));
    if (equals != std::string::npos) return Fail(name + " takes no value");
    if (flag->option) result_.*flag->option = true;
    if (flag->guest_option) result_.guest.*flag->guest_option = true;
  }

  void TakeValue(const ValueOption& option, const std::string& word, size_t equals) {
    const std::string name(option.name);
    const bool is_inside = equals != std::string::npos;
    if (!is_inside && next_ == words_.size()) return Fail(name + " needs a value");
    const std::string value = is_inside ? word.substr(equals + 1) : words_[next_++];
    const char* need = option.take(value, &result_);
    if (need) Fail(name + " needs " + need + ", not " + Quoted(value));
  }

  void Fail(const std::string& error) { result_.error = error; }

  const std::vector<std::string>& words_;
  size_t next_ = 0;
  ProgramOptions result_;
};

}  // namespace

ProgramOptions ReadProgramOptions(const std::vector<std::string>& words) { return WordReader(words).Read(); }

}  // namespace taviguest
