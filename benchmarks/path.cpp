#include "benchmarks/path.h"

#include <algorithm>

#include "benchmarks/bench_host.h"
#include "benchmarks/floor.h"

namespace taviinputmanager::bench {

SendFunction volatile floor_send = &Sink;

namespace {

std::string* floor_lines = nullptr;

void Note(const char* data, int length) { floor_lines->append(data, static_cast<std::size_t>(length)); }

std::string RecordFloor(const Path& path) {
  std::string lines;
  const Side side(path, true);
  floor_lines = &lines;
  floor_send = &Note;
  side.Round();
  floor_send = &Sink;
  return lines;
}

}  // namespace

std::vector<Path> AllPaths() {
  std::vector<Path> all;
  for (const auto& paths : {KeyPaths(), MousePaths(), TimedPaths()}) all.insert(all.end(), paths.begin(), paths.end());
  return all;
}

Side::Side(const Path& path, bool is_floor)
    : round_(is_floor ? path.floor : path.round), tear_down_(is_floor ? path.floor_tear_down : path.tear_down) {
  void (*const set_up)() = is_floor ? path.floor_set_up : path.set_up;
  if (set_up) set_up();
  round_();  // objects that are created at first use exist afterwards
}

Side::~Side() {
  if (tear_down_) tear_down_();
}

std::string CheckPath(const Path& path) {
  std::string lines;
  {
    const Side side(path, false);
    lines = Record(path.round);
  }
  const auto count = std::count(lines.begin(), lines.end(), '\n');
  if (count != path.lines) return "sends " + std::to_string(count) + " lines:\n" + lines;
  const std::string floor = RecordFloor(path);
  if (lines != floor) return "and its floor differ:\n" + lines + "---\n" + floor;
  return {};
}

}  // namespace taviinputmanager::bench
