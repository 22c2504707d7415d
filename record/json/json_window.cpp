#include "record/json/json_window.h"

#include <algorithm>
#include <cstring>

#include <QIODevice>

namespace taviinputmanager {
namespace {

constexpr std::size_t kMostHeld = std::size_t{1} << 29;  // bytes; twice that still fits a Qt text

}  // namespace

JsonWindow::JsonWindow(QIODevice* source, int bytes)
    : source_(source), bytes_(static_cast<std::size_t>(bytes)), next_(bytes_.data()), end_(next_) {}

bool JsonWindow::Fill() {
  // First the consumed part is removed, then new data is appended to the rest.
  const char* const kept = held_ ? held_ : next_;
  const auto kept_size = static_cast<std::size_t>(end_ - kept);
  if (kept_size > kMostHeld) return false;
  const auto passed_size = next_ - kept;
  std::memmove(bytes_.data(), kept, kept_size);
  front_offset_ += kept - bytes_.data();
  if (kept_size == bytes_.size()) bytes_.resize(2 * kept_size);
  const qint64 read = source_->read(bytes_.data() + kept_size, static_cast<qint64>(bytes_.size() - kept_size));

  if (held_) held_ = bytes_.data();
  next_ = bytes_.data() + passed_size;
  end_ = bytes_.data() + kept_size + std::max<qint64>(read, 0);
  return read > 0;
}

}  // namespace taviinputmanager
