// The ways of events that are measured.
#ifndef BENCHMARKS_PATH_H_
#define BENCHMARKS_PATH_H_

#include <string>
#include <vector>

namespace taviinputmanager::bench {

// A path is driven in rounds: one to a hundred events, after which everything is as it was before.
struct Path {
  const char* name;
  int events;  // of a round
  int lines;   // of a round; 0 for events that are held back
  void (*set_up)();
  void (*round)();
  void (*tear_down)();  // may be null
  // The same for what it is measured against.
  void (*floor_set_up)();  // may be null
  void (*floor)();
  void (*floor_tear_down)();  // may be null
  // Rounds of a repetition, for paths that keep something of each round; 0: as many as the time asks for.
  int rounds;
};

std::vector<Path> KeyPaths();
std::vector<Path> MousePaths();
std::vector<Path> TimedPaths();

// All of them.
std::vector<Path> AllPaths();

// What is wrong with a path and its floor: lines that differ, or not as many as it says. Empty when all is well.
std::string CheckPath(const Path& path);

// One side of a path: set up on construction, torn down at the end.
class Side {
 public:
  Side(const Path& path, bool is_floor);
  ~Side();
  Side(const Side&) = delete;
  Side& operator=(const Side&) = delete;

  void Round() const { round_(); }

 private:
  void (*round_)();
  void (*tear_down_)();
};

}  // namespace taviinputmanager::bench

#endif  // BENCHMARKS_PATH_H_
