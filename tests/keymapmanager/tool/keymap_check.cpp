// Prints the reader's results for files, for the test that compares them with the schema: a line "ok <file>", "warning
// <file>" or "error <file>" for each, followed by its diagnostics. `--schema` prints the schema instead.
#include <cstdio>

#include "keymapmanager/keymap_file.h"

using tavikeymapmanager::Diagnostic;
using tavikeymapmanager::LoadResult;

namespace {

const char* VerdictOn(const LoadResult& result) {
  if (result.HasErrors()) return "error";
  return result.diagnostics.isEmpty() ? "ok" : "warning";
}

void Check(const char* path) {
  const LoadResult result = tavikeymapmanager::ReadKeymapFile(QString::fromLocal8Bit(path));
  std::printf("%s %s\n", VerdictOn(result), path);
  for (const Diagnostic& diagnostic : result.diagnostics) {
    std::printf("  %s\n", tavikeymapmanager::FormatDiagnostic(diagnostic).toLocal8Bit().constData());
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && qstrcmp(argv[1], "--schema") == 0) {
    std::fputs(tavikeymapmanager::KeymapFileSchema().constData(), stdout);
    return 0;
  }
  for (int i = 1; i < argc; ++i) Check(argv[i]);
  return 0;
}
