// A keymap file as the window reads it: once, with signals when it changes or is deleted.
#include "host/session/keymap_source.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include "host/session/keymap_watch.h"
#include "keymapmanager/keymap_file.h"
#include "tests/support/application_object.h"
#include "tests/support/run_until.h"
#include "tests/support/system/make_pipe.h"

namespace tavi {
namespace {

constexpr char kOne[] = "format: 1\nitems: [{type: Click, key: Space, point: [0.5, 0.5]}]\n";
constexpr char kNone[] = "format: 1\nitems: []\n";
constexpr char kBroken[] = "format: 1\nitems: [\n";
class KeymapSourceTest : public testing::Test {
 protected:
  QString Path() const { return folder_.filePath("keymap.yaml"); }
  void Write(const char* text) const {
    QFile file(Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  static QByteArray ContentOf(const QString& name) {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  QTemporaryDir folder_;
};

TEST_F(KeymapSourceTest, IsOfOneVersionAlsoWhenItIsSavedMeanwhile) {
  Write(kOne);
  KeymapSource source;
  source.Read(Path());
  Write(kNone);
  EXPECT_EQ(source.LastText(), QByteArray(kOne));
  EXPECT_EQ(source.InUse().config->items.size(), 1);
  EXPECT_EQ(ContentOf(source.PathForUse()), QByteArray(kOne));
}

TEST_F(KeymapSourceTest, TheLibraryGetsTheStateThatIsInUse) {
  Write(kOne);
  KeymapSource source;
  source.Read(Path());
  Write(kBroken);
  source.Read(Path());
  EXPECT_TRUE(source.KeepsEarlierState());
  EXPECT_EQ(source.LastText(), QByteArray(kBroken));
  EXPECT_EQ(source.TextInUse(), QByteArray(kOne));
  EXPECT_EQ(ContentOf(source.PathForUse()), QByteArray(kOne));
  Write(kNone);
  source.Read(Path());
  EXPECT_EQ(ContentOf(source.PathForUse()), QByteArray(kNone));
}

TEST_F(KeymapSourceTest, NoKeymapIsNoFile) {
  KeymapSource source;
  source.Read(QString());
  EXPECT_EQ(source.PathForUse(), QString());
}

TEST_F(KeymapSourceTest, APipeIsNotWaitedFor) {
  ASSERT_TRUE(MakePipe(QFile::encodeName(Path()).constData()));
  KeymapSource source;
  source.Read(Path());
  EXPECT_TRUE(source.InUse().HasErrors());
  EXPECT_EQ(source.InUse().diagnostics.value(0).message, QString("cannot be read: not a plain file"));
}

class KeymapWatchTest : public KeymapSourceTest {
 protected:
  KeymapWatchTest() {
    QObject::connect(&watch_, &KeymapWatch::Changed, &watch_, [this] { told_ += "changed"; });
    QObject::connect(&watch_, &KeymapWatch::Vanished, &watch_, [this] { told_ += "vanished"; });
  }

  bool IsToldOnce(const char* what) {
    EXPECT_TRUE(taviinputmanager::RunEventsUntil([this] { return !told_.isEmpty(); }));
    const QStringList told = std::exchange(told_, {});
    return told == QStringList(what);
  }

 private:
  ApplicationObject<QCoreApplication> application_;

 protected:
  KeymapWatch watch_;
  QStringList told_;
};

TEST_F(KeymapWatchTest, TellsThatAFileIsGoneAndThatItIsBack) {
  Write(kOne);
  watch_.Watch(Path());
  EXPECT_TRUE(watch_.IsThere());
  QFile::remove(Path());
  EXPECT_TRUE(IsToldOnce("vanished"));
  EXPECT_FALSE(watch_.IsThere());
  Write(kNone);
  EXPECT_TRUE(IsToldOnce("changed"));
  EXPECT_TRUE(watch_.IsThere());
}

}  // namespace
}  // namespace tavi
