#include "core/input_logger.h"

#include <Poco/AutoPtr.h>
#include <Poco/Exception.h>
#include <Poco/FileChannel.h>
#include <Poco/FormattingChannel.h>
#include <Poco/Logger.h>
#include <Poco/Message.h>
#include <Poco/PatternFormatter.h>
#include <Poco/Process.h>

namespace taviinputmanager {
namespace {

constexpr char kLoggerName[] = "input_logger";
constexpr char kBaseFileName[] = "input_looger.txt";

// Looked up by name for each line: a host that uses the same classes may destroy loggers and configure its own.
Poco::Logger& Logger() { return Poco::Logger::get(kLoggerName); }

// The logger that was configured here, kept alive. The registry locks on each lookup, and every key that passes through
// needs the level.
Poco::Logger& OwnLogger() {
  static Poco::AutoPtr<Poco::Logger> logger(&Logger(), true);
  return *logger;
}

// A log that cannot be written must not stop the input, so a file that cannot be opened is no error for the caller.
template <typename Function>
void Write(Function&& function) {
  try {
    function();
  } catch (const Poco::Exception&) {
  }
}

}  // namespace

InputLogger::InputLogger() {
  Poco::AutoPtr<Poco::FileChannel> file(new Poco::FileChannel);
  file->setProperty("path", std::string(kBaseFileName) + "_" + std::to_string(Poco::Process::id()));
  file->setProperty("rotation", "64 K");
  file->setProperty("archive", "timestamp");
  file->setProperty("purgeCount", "2");
  Poco::AutoPtr<Poco::PatternFormatter> formatter(new Poco::PatternFormatter("%L%Y-%m-%d %H:%M:%S:%i [Thread-%I]: %t"));
  Poco::AutoPtr<Poco::FormattingChannel> channel(new Poco::FormattingChannel(formatter, file));
  OwnLogger().setChannel(channel);
  OwnLogger().setLevel(Poco::Message::PRIO_ERROR);
}

void InputLogger::Debug(const std::string& message) {
  Write([&] { Logger().debug(message); });
}

void InputLogger::Error(const std::string& message) {
  Write([&] { Logger().error(message); });
}

bool InputLogger::IsDebugOn() const {
  const Poco::Logger& logger = OwnLogger();
  if (logger.debug()) return true;
  return logger.referenceCount() == 1;  // only for this file: lines go to whichever logger has its name now
}

}  // namespace taviinputmanager
