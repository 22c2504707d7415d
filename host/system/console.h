// The standard streams, as the commands use them, and how the program ends.
//
// Threads: main, but what prints may be called on any.
#ifndef HOST_SYSTEM_CONSOLE_H_
#define HOST_SYSTEM_CONSOLE_H_

#include <QByteArray>
#include <QString>

namespace tavi {

// Exit statuses of the program.
constexpr int kExitDone = 0;
constexpr int kExitProblem = 1;  // the work was done and found something wrong, or could not be finished
constexpr int kExitUsage = 2;    // the command line, or what it names, cannot be used

// The name that stands for standard input or output in the place of a file's.
constexpr char kStandardStream[] = "-";

void Print(const QString& text);           // to standard output, as UTF-8
void PrintBytes(const QByteArray& bytes);  // to standard output
void PrintError(const QString& text);      // to standard error
// From here on each print is seen at once. Before the first one.
void PrintAtOnce();

// What went wrong with standard output up to here, or nothing. Where nobody reads it any more, each of these ends the
// program without a word.
QString FlushOutput();
// The exit status in place of `status` when not all of standard output could be written, which is told.
int FinishOutput(int status);

// What there is on standard input, but no more than so many bytes.
QByteArray ReadStandardInput(qint64 most);

}  // namespace tavi

#endif  // HOST_SYSTEM_CONSOLE_H_
