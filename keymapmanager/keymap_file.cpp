#include "keymapmanager/keymap_file.h"

#include <QFile>

#include "keymap/keywords.h"
#include "keymapmanager/diagnostic_list.h"
#include "keymapmanager/keymap_reader.h"
#include "keymapmanager/yaml_node.h"

namespace tavikeymapmanager {

namespace {

constexpr qint64 kMostBytes = 1024 * 1024;

LoadResult DefaultResult() {
  LoadResult result;
  result.config = DefaultConfig();
  return result;
}

// The keymap of the system's own apps: what the keymap takes nowhere else is typed and steered as on any computer.
LoadResult SystemResult() {
  LoadResult result = DefaultResult();
  result.config->settings->keyboard_transparent = true;
  result.config->settings->joystick_transparent = true;
  return result;
}

LoadResult FailedResult(const QString& file, const YamlSpan& span, const QString& message) {
  DiagnosticList diagnostics(file);
  diagnostics.Error(span, message);
  LoadResult result = DefaultResult();
  result.diagnostics = diagnostics.Sorted();
  return result;
}

}  // namespace

LoadResult ReadKeymapFile(const QString& path) {
  if (path.isEmpty()) return DefaultResult();
  if (path == keywords::kSystemKeymap) return SystemResult();
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) {
    return FailedResult(path, {}, QStringLiteral("cannot be read: %1").arg(file.errorString()));
  }
  // One byte more than allowed is enough to see that it is too long; a device may have no end.
  return ReadKeymapText(file.read(kMostBytes + 1), path);
}

LoadResult ReadKeymapText(const QByteArray& text, const QString& file) {
  if (text.size() > kMostBytes) {
    return FailedResult(file, {}, QStringLiteral("longer than %1 bytes").arg(kMostBytes));
  }
  YamlError error;
  const std::optional<YamlNode> root = ParseYaml(text, &error);
  if (!root) return FailedResult(file, error.span, error.message);
  DiagnosticList diagnostics(file);
  LoadResult result = KeymapReader(&diagnostics).Read(*root);
  result.diagnostics = diagnostics.Sorted();
  return result;
}

QString FormatDiagnostic(const Diagnostic& diagnostic) {
  const bool is_error = diagnostic.severity == Diagnostic::Severity::kError;
  // Put together, not filled in: a path or message may hold what looks like a place marker.
  const QString place = QLatin1Char(':') + QString::number(diagnostic.line) + QLatin1Char(':') +
                        QString::number(diagnostic.column) + QStringLiteral(": ");
  return diagnostic.file + place + (is_error ? QStringLiteral("error: ") : QStringLiteral("warning: ")) +
         diagnostic.message;
}

}  // namespace tavikeymapmanager
