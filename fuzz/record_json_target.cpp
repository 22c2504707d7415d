// Input: bytes as a record file, read and copied without a tree of it. Property: the result is that of the JSON
// libraries.
#include "fuzz/check.h"
#include "tests/record/json/library_way.h"

// The first byte sets the size of the window; the others are the file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace taviinputmanager;
  if (size < 1) return 0;
  const int window_bytes = 8 + data[0] % 64;
  const QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
  int count = 0;
  std::string difference = DifferenceInReading(bytes, window_bytes, &count);
  if (difference.empty()) difference = DifferenceInCopying(bytes, window_bytes, &count);
  fuzz::Check(difference.empty(), QString::fromStdString(difference));
  return 0;
}
