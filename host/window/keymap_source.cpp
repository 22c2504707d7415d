#include "host/window/keymap_source.h"

#include <utility>

#include <QFile>
#include <QTemporaryFile>

#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace km = tavikeymapmanager;

namespace {

QByteArray ContentsOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

KeymapSource::KeymapSource() : read_(std::make_unique<km::LoadResult>(km::ReadKeymapFile(QString()))) {}

KeymapSource::~KeymapSource() = default;

void KeymapSource::Read(const QString& path) {
  const bool is_same_file = path == path_ && !path.isEmpty();
  auto result = std::make_unique<km::LoadResult>(km::ReadKeymapFile(path));
  if (!result->HasErrors()) {
    good_.reset();
    text_ = ContentsOf(path);
  } else if (!is_same_file) {
    good_.reset();
    text_.clear();
  } else if (!read_->HasErrors()) {
    good_ = std::move(read_);
  }
  path_ = path;
  read_ = std::move(result);
}

bool KeymapSource::KeepsEarlierState() const { return good_ != nullptr; }

const km::LoadResult& KeymapSource::InUse() const { return good_ ? *good_ : *read_; }

QString KeymapSource::PathForUse() {
  if (!good_ && (path_.isEmpty() || QFile::exists(path_))) return path_;
  copy_ = std::make_unique<QTemporaryFile>();
  const bool is_written = copy_->open() && copy_->write(text_) == text_.size() && copy_->flush();
  return is_written ? copy_->fileName() : path_;
}

}  // namespace tavi
