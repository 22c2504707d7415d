// The paths of events that are measured.
#ifndef BENCHMARKS_PATH_H_
#define BENCHMARKS_PATH_H_

#include <string>
#include <vector>

namespace taviinputmanager::bench {

// A path is measured in rounds: one to a hundred events, after which the initial state is restored.
struct Path {
  const char* name;
  int events;  // per round
  int lines;   // per round; 0 for events that are held back
  void (*set_up)();
  void (*round)();
  void (*tear_down)();  // may be null
  // The same for its baseline.
  void (*floor_set_up)();  // may be null
  void (*floor)();
  void (*floor_tear_down)();  // may be null
  // Rounds per repetition, for paths that accumulate data in each round; 0: as many as fit the time.
  int rounds;
};

std::vector<Path> KeyPaths();
std::vector<Path> MousePaths();
std::vector<Path> TimedPaths();

// All paths.
std::vector<Path> AllPaths();

// The problem of a path and its baseline: different lines, or not the stated number of them. Empty if there is none.
std::string CheckPath(const Path& path);

// One side of a path: set up by the constructor, torn down by the destructor.
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
