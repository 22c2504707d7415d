#include "host/session/keymap_source.h"

#include <utility>

#include <QFileInfo>
#include <QTemporaryDir>

#include "host/system/whole_file.h"
#include "keymap/keywords.h"
#include "keymapmanager/keymap_file.h"

namespace tavi {

namespace km = tavikeymapmanager;

KeymapSource::KeymapSource() : read_(std::make_unique<km::LoadResult>(km::ReadKeymapFile(QString()))) {}

KeymapSource::~KeymapSource() = default;

void KeymapSource::Read(const QString& path) { Take(path, km::ReadKeymapFile(path)); }

void KeymapSource::ReadText(const QString& path, const QByteArray& text) { Take(path, km::ReadKeymapText(text, path)); }

void KeymapSource::Take(const QString& path, km::LoadResult result) {
  const bool is_same_file = path == path_ && !path.isEmpty();
  if (!result.HasErrors() || !is_same_file) {
    good_.reset();
  } else if (!read_->HasErrors()) {
    good_ = std::move(read_);
  }
  path_ = path;
  read_ = std::make_unique<km::LoadResult>(std::move(result));
}

bool KeymapSource::KeepsEarlierState() const { return good_ != nullptr; }

const km::LoadResult& KeymapSource::InUse() const { return good_ ? *good_ : *read_; }

const QByteArray& KeymapSource::TextInUse() const { return InUse().text; }

const QByteArray& KeymapSource::LastText() const { return read_->text; }

// If no copy can be made, the file itself is used.
QString KeymapSource::PathForUse() {
  if (path_.isEmpty() || path_ == km::keywords::kSystemKeymap) return path_;
  if (!copies_) copies_ = std::make_unique<QTemporaryDir>();
  const QString copy = copies_->filePath(QFileInfo(path_).fileName());
  return copies_->isValid() && WriteWholeFile(copy, TextInUse()).isEmpty() ? copy : path_;
}

}  // namespace tavi
