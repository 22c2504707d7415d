// Settings in files are the same on both Qt versions.
#include "qt/ini_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

class IniFile : public testing::Test {
 protected:
  QString File() const { return folder_.filePath(QStringLiteral("settings.ini")); }
  void Write(const QByteArray& content) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Content() const {
    QFile file(File());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  const QString text_ = QStringLiteral(u"caf\u00E9 \u4E2D");
  const QByteArray bytes_ = QByteArray("\xFF\xE9", 2);

 private:
  QTemporaryDir folder_;
};

TEST_F(IniFile, HasItsTextsInUtf8) {
  {
    qt::IniFile file(File());
    file.setValue(QStringLiteral("text"), text_);
    file.setValue(QStringLiteral("bytes"), bytes_);
  }
  EXPECT_TRUE(Content().contains("text=caf\u00E9 \u4E2D")) << Content().toStdString();
  qt::IniFile file(File());
  EXPECT_EQ(file.value(QStringLiteral("text")).toString(), text_);
  EXPECT_EQ(file.value(QStringLiteral("bytes")).toByteArray(), bytes_);
}

TEST_F(IniFile, MayHaveTheEscapesOfQt5) {
  Write("[General]\nbytes=@ByteArray(\\xff\\xe9)\ntext=caf\\xe9 \\x4e2d\n");
  qt::IniFile file(File());
  EXPECT_EQ(file.value(QStringLiteral("text")).toString(), text_);
  EXPECT_EQ(file.value(QStringLiteral("bytes")).toByteArray(), bytes_);
}

}  // namespace
