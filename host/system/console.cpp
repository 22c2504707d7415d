#include "host/system/console.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include <QFile>

#include "host/system/plain_file.h"

namespace tavi {

namespace {

std::atomic<int> output_error{0};  // the first error of writing to standard output; a replay may write on its thread

// Nobody reads the rest of the output, so there is no reason to continue; on most systems the write itself ends the
// program.
void TakeOutputError(int error) {
  if (error == EPIPE) std::_Exit(kExitProblem);
  int none = 0;
  output_error.compare_exchange_strong(none, error);
}

}  // namespace

void Print(const QString& text) { PrintBytes(text.toUtf8()); }

void PrintBytes(const QByteArray& bytes) {
  const auto size = static_cast<size_t>(bytes.size());
  if (std::fwrite(bytes.constData(), 1, size, stdout) != size) TakeOutputError(errno);
}

QString FlushOutput() {
  if (std::fflush(stdout) != 0) TakeOutputError(errno);
  return output_error == 0 ? QString() : ErrorText(output_error);
}

int FinishOutput(int status) {
  const QString problem = FlushOutput();
  if (problem.isEmpty()) return status;
  PrintError(QStringLiteral("tavi: standard output cannot be written: %1\n").arg(problem));
  return status == kExitDone ? kExitProblem : status;
}

void PrintError(const QString& text) {
  const QByteArray bytes = text.toUtf8();
  std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stderr);
}

// Lines are printed as a whole, and not every system has line buffers.
void PrintAtOnce() { std::setvbuf(stdout, nullptr, _IONBF, 0); }

// A read from a pipe returns what is in it so far; only an empty read is its end.
QByteArray ReadStandardInput(qint64 most) {
  QByteArray content;
  QFile input;
  if (!input.open(stdin, QIODevice::ReadOnly)) return content;
  while (content.size() < most) {
    const QByteArray piece = input.read(most - content.size());
    if (piece.isEmpty()) break;
    content += piece;
  }
  return content;
}

}  // namespace tavi
