// The program as its users start it.
#ifndef TESTS_SUPPORT_PROGRAM_H_
#define TESTS_SUPPORT_PROGRAM_H_

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "test_folders.h"
#include "tests/support/application_object.h"

namespace tavi {

struct Outcome {
  int status = -1;
  QString output;
  QString errors;
};

class Program : public testing::Test {
 protected:
  Program() = default;

  // Writes a file to the test's own folder, in which the program is started.
  void Write(const QString& name, const char* text) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  Outcome Run(const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.setWorkingDirectory(folder_.path());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY"}) environment.remove(QLatin1String(variable));
    if (!has_platform_) environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    if (!has_session_) environment.remove(QStringLiteral("XDG_RUNTIME_DIR"));
    process.setProcessEnvironment(environment);
    if (!output_.isEmpty()) process.setStandardOutputFile(output_);
    process.start(QStringLiteral(TAVI_PROGRAM), arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
  }

  QString Folder() const { return folder_.path(); }
  bool Has(const QString& name) const { return QFile::exists(folder_.filePath(name)); }
  QByteArray Content(const QString& name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  bool has_platform_ = true;
  bool has_session_ = true;
  QString output_;  // where standard output goes; empty: into the outcome

 private:
  ApplicationObject<QCoreApplication> application_;
  QTemporaryDir folder_;
};

}  // namespace tavi

#endif  // TESTS_SUPPORT_PROGRAM_H_
