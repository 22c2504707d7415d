// Measures the cost of events.
//
//   tavi_bench [Google Benchmark's own options]    measures every path and its baseline
//   tavi_bench --events=SIDE/PATH:N                runs N rounds of one side (path or floor, the baseline) and prints
//   the events tavi_bench --list                              lists the sides and paths tavi_bench --spacing prints the
//   times between ticks of 8 ms, as JSON
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include <QGuiApplication>

#include "benchmarks/bench_host.h"
#include "benchmarks/growth.h"
#include "benchmarks/path.h"
#include "benchmarks/spacing.h"
#include "tests/support/allocation_count.h"

namespace taviinputmanager::bench {
namespace {

std::string NameOf(const Path& path, bool is_floor) { return std::string(is_floor ? "floor/" : "path/") + path.name; }

void Measure(benchmark::State& state, const Path& path, bool is_floor) {
  const Side side(path, is_floor);
  const std::int64_t before = test::AllocationCount();
  for (auto _ : state) side.Round();
  const auto allocations = static_cast<double>(test::AllocationCount() - before);
  state.counters["allocations"] = allocations / (static_cast<double>(state.iterations()) * path.events);
  state.counters["events"] = path.events;
  state.counters["lines"] = path.lines;
}

void Register(const Path& path, bool is_floor) {
  auto* registered = benchmark::RegisterBenchmark(
      NameOf(path, is_floor).c_str(), [path, is_floor](benchmark::State& state) { Measure(state, path, is_floor); });
  if (path.rounds > 0) registered->Iterations(path.rounds);
}

// Every path must work, or its figures are meaningless.
bool CheckPaths() {
  bool is_right = true;
  for (const Path& path : AllPaths()) {
    const std::string fault = CheckPath(path);
    if (fault.empty()) continue;
    std::fprintf(stderr, "tavi_bench: %s %s\n", path.name, fault.c_str());
    is_right = false;
  }
  return is_right;
}

int RunEvents(const std::string& what) {
  const std::size_t colon = what.rfind(':');
  const std::string name = what.substr(0, colon);
  const long rounds = colon == std::string::npos ? 0 : std::strtol(what.c_str() + colon + 1, nullptr, 10);
  for (const Path& path : AllPaths()) {
    for (const bool is_floor : {false, true}) {
      if (NameOf(path, is_floor) != name) continue;
      const Side side(path, is_floor);
      for (long i = 0; i < rounds; ++i) side.Round();
      std::printf("%ld\n", rounds * path.events);
      std::fflush(stdout);
      std::_Exit(EXIT_SUCCESS);  // the teardown of a path belongs to no event
    }
  }
  std::fprintf(stderr, "tavi_bench: no such path: %s\n", name.c_str());
  return EXIT_FAILURE;
}

int List() {
  for (const Path& path : AllPaths()) {
    for (const bool is_floor : {false, true}) std::printf("%s\n", NameOf(path, is_floor).c_str());
  }
  return EXIT_SUCCESS;
}

int RunBenchmarks(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  if (!CheckPaths()) return EXIT_FAILURE;
  for (const Path& path : AllPaths()) {
    for (const bool is_floor : {false, true}) Register(path, is_floor);
  }
  RegisterGrowth();
  benchmark::RunSpecifiedBenchmarks();
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace taviinputmanager::bench

int main(int argc, char** argv) {
  using namespace taviinputmanager::bench;
  constexpr char kEvents[] = "--events=";
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  SetUpHost();
  if (argc == 2 && std::strcmp(argv[1], "--list") == 0) return List();
  if (argc == 2 && std::strcmp(argv[1], "--spacing") == 0) return PrintSpacing();
  if (argc == 2 && std::strncmp(argv[1], kEvents, sizeof kEvents - 1) == 0) {
    return RunEvents(argv[1] + sizeof kEvents - 1);
  }
  return RunBenchmarks(argc, argv);
}
