#include "keymapmanager/keymap_file.h"

#include <QFile>
#include <QFileInfo>

#include "keymap/keywords.h"
#include "keymapmanager/fields/diagnostic_list.h"
#include "keymapmanager/keymap_reader.h"
#include "keymapmanager/yaml/yaml_node.h"

namespace tavikeymapmanager {

namespace {

LoadResult DefaultResult() {
  LoadResult result;
  result.config = DefaultConfig();
  return result;
}

// The keymap of the system's own apps: what it does not map is typed and moved as on any computer.
LoadResult SystemResult() {
  LoadResult result = DefaultResult();
  result.config->settings->keyboard_transparent = true;
  result.config->settings->joystick_transparent = true;
  return result;
}

// Why this is not a readable file: it is a folder; or it is a pipe, which blocks its reader and can be read only once,
// or a device, which may be endless. Empty for a file, and if nothing exists.
QString NoFileProblem(const QString& path) {
  const QFileInfo info(path);
  if (info.isDir()) return QStringLiteral("it is a folder");
  return info.exists() && !info.isFile() ? QStringLiteral("not a plain file") : QString();
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
  QString problem = NoFileProblem(path);
  QFile file(path);
  if (problem.isEmpty() && !file.open(QIODevice::ReadOnly)) problem = file.errorString();
  if (!problem.isEmpty()) return FailedResult(path, {}, QStringLiteral("cannot be read: %1").arg(problem));
  // One byte more than allowed is enough to see that the file is too long.
  return ReadKeymapText(file.read(kMostKeymapBytes + 1), path);
}

LoadResult ReadKeymapText(const QByteArray& text, const QString& file) {
  if (text.size() > kMostKeymapBytes) {
    return FailedResult(file, {}, QStringLiteral("longer than %1 bytes").arg(kMostKeymapBytes));
  }
  YamlError error;
  const std::optional<YamlNode> root = ParseYaml(text, &error);
  DiagnosticList diagnostics(file);
  LoadResult result = root ? KeymapReader(&diagnostics).Read(*root) : DefaultResult();
  if (!root) diagnostics.Error(error.span, error.message);
  result.diagnostics = diagnostics.Sorted();
  result.text = text;
  return result;
}

QString FormatDiagnostic(const Diagnostic& diagnostic) {
  const bool is_error = diagnostic.severity == Diagnostic::Severity::kError;
  // Concatenated instead of formatted: a path or message may contain a placeholder.
  const QString place = QLatin1Char(':') + QString::number(diagnostic.line) + QLatin1Char(':') +
                        QString::number(diagnostic.column) + QStringLiteral(": ");
  return diagnostic.file + place + (is_error ? QStringLiteral("error: ") : QStringLiteral("warning: ")) +
         diagnostic.message;
}

}  // namespace tavikeymapmanager
