// What the program says.
#ifndef GUEST_PROGRAM_OUTPUT_H_
#define GUEST_PROGRAM_OUTPUT_H_

#include <string>
#include <string_view>

namespace taviguest {

// Threads: main.
class Output {
 public:
  // `program` as it is called, which stands in front of what it tells.
  explicit Output(std::string program) : program_(std::move(program)) {}

  void Print(std::string_view text);  // to standard output
  // Each is a line on standard error; the second one is of a file, whose name stands in front in the program's place.
  void Tell(const std::string& text) const;
  static void TellOf(const std::string& file, const std::string& text);

  void Flush();
  // The exit status in place of `status` when not all of standard output could be written, which is told; not when its
  // reader is just gone.
  int Finish(int status);

 private:
  const std::string program_;
  int error_ = 0;  // the first that writing met
};

}  // namespace taviguest

#endif  // GUEST_PROGRAM_OUTPUT_H_
