// Input: bytes as the text of a keymap file. Property: there is always a config, and every diagnostic has a position in
// the file.
#include "fuzz/check.h"
#include "keymapmanager/keymap_file.h"

using taviinputmanager::fuzz::Check;
using tavikeymapmanager::Diagnostic;

namespace {

void CheckFinding(const Diagnostic& finding) {
  const QString text = tavikeymapmanager::FormatDiagnostic(finding);
  Check(finding.line >= 1 && finding.column >= 1, "a diagnostic has a position: " + text);
  const bool ends_behind =
      finding.end_line > finding.line || (finding.end_line == finding.line && finding.end_column >= finding.column);
  Check(ends_behind, "a diagnostic does not end before it starts: " + text);
  Check(!finding.message.isEmpty() && !text.contains('\n'), "a diagnostic is one line: " + text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
  const tavikeymapmanager::LoadResult result = tavikeymapmanager::ReadKeymapText(text, "input.yaml");
  Check(result.config != nullptr, "a load is never null");
  Check(result.config->settings && result.config->wheel_settings, "both settings are there");
  Check(!result.config->items.contains(nullptr), "no item is null");
  Check(result.config->items.size() == result.item_sources.size(), "every item has its source");
  Check(!result.HasErrors() || result.config->items.isEmpty(), "no file is loaded in part");
  for (const Diagnostic& finding : result.diagnostics) CheckFinding(finding);
  return 0;
}
