// Keymaps that are edited: a document with a file of its own, and the lines that an edit changed.
#ifndef TESTS_HOST_EDITOR_DOCUMENT_FIXTURE_H_
#define TESTS_HOST_EDITOR_DOCUMENT_FIXTURE_H_

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "host/editor/keymap_document.h"
#include "test_folders.h"

namespace tavi {

inline QByteArray BytesOf(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return file.readAll();
}

inline void WriteTo(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
}

inline QStringList ExampleKeymaps() {
  QStringList paths;
  const QDir folder(QStringLiteral(TAVI_SOURCE_DIR "/examples/keymaps"));
  for (const QFileInfo& file : folder.entryInfoList({QStringLiteral("*.yaml")})) paths += file.absoluteFilePath();
  return paths;
}

// The numbers, from 1, of the lines in which two texts with the same number of lines differ; {-1} for texts that cannot
// be compared.
inline QVector<int> ChangedLines(const QByteArray& before, const QByteArray& after) {
  const QList<QByteArray> lines = before.split('\n');
  const QList<QByteArray> lines_after = after.split('\n');
  if (lines.size() != lines_after.size()) return {-1};
  QVector<int> changed;
  for (int i = 0; i < lines.size(); ++i) {
    if (lines[i] != lines_after[i]) changed.append(i + 1);
  }
  return changed;
}

inline int LineOf(const QByteArray& text, int position) { return text.left(position).count('\n') + 1; }

class DocumentFixture : public testing::Test {
 protected:
  // Opens a document with a file of this content.
  void Open(const QByteArray& text) {
    path_ = folder_.filePath(QStringLiteral("keymap.yaml"));
    WriteTo(path_, text);
    ASSERT_TRUE(document_.Open(path_));
  }
  std::string Text() const { return document_.Text().toStdString(); }

  QTemporaryDir folder_;
  QString path_;
  KeymapDocument document_;
};

}  // namespace tavi

#endif  // TESTS_HOST_EDITOR_DOCUMENT_FIXTURE_H_
