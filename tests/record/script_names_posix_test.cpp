// Asking for the names of app and package of a script without them: the call does not return.
#include <cstdlib>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>

#include "taviinputmanager/taviinputmanager.h"
#include "tests/record/record_files.h"

namespace taviinputmanager {
namespace {

class ScriptNamesForEver : public testing::Test, protected RecordFiles {};

// A call that does not return is ended by a limit of processor time, which is independent of the machine's load.
TEST_F(ScriptNamesForEver, AreLookedForForEverWhereTheFirstActionHasNoData) {
  const struct {
    const char* name;
    const char* json;
  } rows[] = {
      {"no actions", "{'actions': []}"},
      {"no data", "{'actions': [{'type': 'touch'}]}"},
      {"empty data", "{'actions': [{'data': ''}, {'data': '{}'}]}"},
      {"data that is no text", "{'actions': [{'data': 5}]}"},
      {"actions that are no list", "{'actions': {'data': '{}'}}"},
      {"in the first item", "{'merged_actions': [{'actions': []}, {'actions': [{'data': '{}'}]}]}"},
  };
  const auto look = [this](const char* json) {
    itimerval limit{};
    limit.it_value.tv_usec = 20000;
    setitimer(ITIMER_VIRTUAL, &limit, nullptr);
    QString app, package;
    GetScriptAppAndPackage(Put("script.json", Text(json)), app, package);
    std::exit(0);
  };
  for (const auto& row : rows) EXPECT_EXIT(look(row.json), testing::KilledBySignal(SIGVTALRM), "") << row.name;
}

}  // namespace
}  // namespace taviinputmanager
