// Writes the library's diagnostic messages to a rotating file in the working directory.
#ifndef CORE_INPUT_LOGGER_H_
#define CORE_INPUT_LOGGER_H_

#include <string>

namespace taviinputmanager {

// Any thread. The file name contains the process id, so that two hosts do not share a file.
class InputLogger {
 public:
  static InputLogger* GetInstance() {
    static InputLogger instance;
    return &instance;
  }

  // Below the default threshold: such messages are dropped.
  void Debug(const std::string& message);
  void Error(const std::string& message);

  // Whether debug messages may be written. Check this before formatting one in a hot path.
  bool IsDebugOn() const;

 private:
  InputLogger();
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_LOGGER_H_
