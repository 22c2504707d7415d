// The output of the program.
#ifndef GUEST_PROGRAM_OUTPUT_H_
#define GUEST_PROGRAM_OUTPUT_H_

#include <string>
#include <string_view>

namespace taviguest {

// Threads: main.
class Output {
 public:
  // `program` is the program's name, which precedes its messages.
  explicit Output(std::string program) : program_(std::move(program)) {}

  void Print(std::string_view text);  // to standard output
  // Each prints a line to standard error; the second is about a file, whose name precedes the message instead of the
  // program's.
  void Tell(const std::string& text) const;
  static void TellOf(const std::string& file, const std::string& text);

  void Flush();
  // The exit status instead of `status` if not all of standard output could be written, which is reported, unless its
  // reader has just exited.
  int Finish(int status);

 private:
  const std::string program_;
  int error_ = 0;  // the first error of a write
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_OUTPUT_H_
