// Files of a window with odd names.
#include "host/editor/keymap_document.h"
#include "host/session/replayer.h"
#include "host/window/editor/keymap_editor.h"
#include "host/window/records/record_bar.h"
#include "host/window/window_memory.h"
#include "tests/host/window/window_fixture.h"
#include "tests/support/odd_names.h"

namespace tavi {
namespace {

class NamesInTheWindow : public WindowFixture {
 protected:
  QStringList Names() const {
    QStringList names;
    for (const QString& name : OddNames(folder_.path())) names += folder_.filePath(name);
    return names;
  }
  void LoadTap(const QString& file) {
    Window()->LoadKeymap(Write(QDir(folder_.path()).relativeFilePath(file).toUtf8().constData(),
                               "{type: Click, key: Space, point: [0.25, 0.75]}"));
  }
  static QByteArray Text(const QString& name) {
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
};

TEST_F(NamesInTheWindow, OfKeymaps) {
  for (const QString& name : Names()) {
    SCOPED_TRACE(name.toStdString());
    LoadTap(name + ".yaml");
    Press(kSpace);
    ExpectNear(Finger(), 320, 540);
    Release(kSpace);

    KeymapEditor* editor = Window()->Editor();
    editor->Switch()->setChecked(true);
    clock_->Settle();
    EXPECT_EQ(editor->Document()->SetPair(0, "point", {0.5, 0.5}), QString());
    EXPECT_TRUE(editor->Save());
    EXPECT_TRUE(Text(name + ".yaml").contains("[0.5, 0.5]"));
    editor->Switch()->setChecked(false);
    Press(kSpace);
    ExpectNear(Finger(), 640, 360);
    Release(kSpace);
  }
}

TEST_F(NamesInTheWindow, OfRecords) {
  for (const QString& name : Names()) {
    SCOPED_TRACE(name.toStdString());
    LoadTap(name + ".yaml");
    RecordBar* records = Window()->Records();
    records->SetTarget(name + ".json");
    records->ToggleRecording();
    Press(kSpace);
    clock_->Advance(100);
    Release(kSpace);
    records->ToggleRecording();
    ASSERT_TRUE(records->OpenRecord(name + ".json"));
    records->TogglePlaying();
    clock_->Advance(50);
    ExpectNear(Finger(), 320, 540);
    clock_->Advance(100);
    EXPECT_EQ(Replayer::GetInstance()->GetState(), Replayer::State::kFinished);
  }
}

TEST_F(NamesInTheWindow, OfPicturesAndOfWhatIsRemembered) {
  for (const QString& name : Names()) {
    SCOPED_TRACE(name.toStdString());
    QImage image(64, 36, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(name + ".png"));
    EXPECT_EQ(Window()->Display()->SetBackground(name + ".png"), QString());
    LoadTap(name + ".yaml");
    WindowMemory(name + ".ini").Save(*Window());
    ASSERT_TRUE(QFile::copy(name + ".ini", name + ".copy.ini"));  // Qt would give this process what it has in memory
    const WindowMemory memory(name + ".copy.ini");
    EXPECT_EQ(memory.Keymap(), name + ".yaml");
    EXPECT_EQ(memory.Options().value("--background"), name + ".png");
  }
}

}  // namespace
}  // namespace tavi
