// The library's diagnostic lines, in one rotating file of the working directory.
#ifndef CORE_INPUT_LOGGER_H_
#define CORE_INPUT_LOGGER_H_

#include <string>

namespace taviinputmanager {

// Any thread. The file bears the process id, so that two hosts do not share one.
class InputLogger {
 public:
  static InputLogger* GetInstance() {
    static InputLogger instance;
    return &instance;
  }

  // Below the threshold as it is set here: such lines are dropped.
  void Debug(const std::string& message);
  void Error(const std::string& message);

  // Whether debug lines may be kept. Ask before a line is put together on a hot path.
  bool IsDebugOn() const;

 private:
  InputLogger();
};

}  // namespace taviinputmanager

#endif  // CORE_INPUT_LOGGER_H_
