#include "host/window/keymap_source.h"

#include <utility>

#include <QFile>
#include <QTemporaryFile>

#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

QByteArray ContentsOf(const QString& path) {
  if (path.isEmpty()) return {};
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

KeymapSource::KeymapSource() : read_(std::make_unique<km::LoadResult>(km::ReadKeymapFile(QString()))) {}

KeymapSource::~KeymapSource() = default;

void KeymapSource::Read(const QString& path) { Take(path, ContentsOf(path), km::ReadKeymapFile(path)); }

void KeymapSource::ReadText(const QString& path, const QByteArray& text) {
  Take(path, text, km::ReadKeymapText(text, path));
}

void KeymapSource::Take(const QString& path, const QByteArray& text, km::LoadResult result) {
  const bool is_same_file = path == path_ && !path.isEmpty();
  if (!result.HasErrors() || !is_same_file) {
    good_.reset();
  } else if (!read_->HasErrors()) {
    good_ = std::move(read_);
    good_text_ = text_;
  }
  text_ = text;
  path_ = path;
  read_ = std::make_unique<km::LoadResult>(std::move(result));
}

bool KeymapSource::KeepsEarlierState() const { return good_ != nullptr; }

const km::LoadResult& KeymapSource::InUse() const { return good_ ? *good_ : *read_; }

QString KeymapSource::PathForUse() {
  if (!good_ && (path_.isEmpty() || QFile::exists(path_))) return path_;
  const QByteArray& text = TextInUse();
  copy_ = std::make_unique<QTemporaryFile>();
  const bool is_written = copy_->open() && copy_->write(text) == text.size() && copy_->flush();
  return is_written ? copy_->fileName() : path_;
}

}  // namespace tavi
