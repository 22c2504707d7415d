// The standard streams for the commands, and the end of the program.
//
// Threads: main, but the functions that print may be called on any.
#ifndef HOST_SYSTEM_CONSOLE_H_
#define HOST_SYSTEM_CONSOLE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// Exit statuses of the program.
constexpr int kExitDone = 0;
constexpr int kExitProblem = 1;  // the command did its work and found something wrong, or could not finish
constexpr int kExitUsage = 2;    // the command line, or a file that it names, cannot be used

// The file name that means standard input or output.
constexpr char kStandardStream[] = "-";

void Print(const QString& text);           // to standard output, as UTF-8
void PrintBytes(const QByteArray& bytes);  // to standard output
void PrintError(const QString& text);      // to standard error
// Flushes each print from now on. Call it before the first print.
void PrintAtOnce();

// The first error of writing to standard output, or an empty string. If nobody reads it anymore, each of these
// functions ends the program silently.
QString FlushOutput();
// The exit status instead of `status` if not all of standard output could be written, which is reported.
int FinishOutput(int status);

// Reads standard input, up to this many bytes.
QByteArray ReadStandardInput(qint64 most);

}  // namespace tavi

#endif  // HOST_SYSTEM_CONSOLE_H_
