// Reads a device incrementally.
#ifndef RECORD_JSON_JSON_WINDOW_H_
#define RECORD_JSON_JSON_WINDOW_H_

#include <string_view>
#include <vector>

#include <QtGlobal>

class QIODevice;

namespace taviinputmanager {

// The content of a device, from its current position to its end, as a moving window. The window is a copy: its content
// stays, whatever happens to the file. A device that fails is at its end.
class JsonWindow {
 public:
  static constexpr int kUsualBytes = 128 * 1024;

  // `source` is open and outlives this object. At least one byte.
  JsonWindow(QIODevice* source, int bytes);
  JsonWindow(const JsonWindow&) = delete;
  JsonWindow& operator=(const JsonWindow&) = delete;

  // The part of the window that is not consumed.
  const char* Begin() const { return next_; }
  const char* End() const { return end_; }
  // Advances to a position in the window.
  void MoveTo(const char* place) { next_ = place; }
  // Reads more data at the end. False at the end of the source. All pointers into the window are invalid then.
  bool Fill();
  // Whether there is another byte at Begin().
  bool HasByte() { return next_ != end_ || Fill(); }
  // Whether that many bytes are in the window.
  bool HasBytes(std::size_t count) {
    while (static_cast<std::size_t>(end_ - next_) < count) {
      if (!Fill()) return false;
    }
    return true;
  }
  // The offset of Begin() from the start of the first window.
  qint64 Offset() const { return front_offset_ + (next_ - bytes_.data()); }

  // While one exists, data from here on stays in the window when it is consumed; the window grows if necessary.
  class Hold {
   public:
    explicit Hold(JsonWindow* window) : window_(window), start_(window->Offset()), is_outermost_(!window->held_) {
      if (is_outermost_) window_->held_ = window_->next_;
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;
    ~Hold() {
      if (is_outermost_) window_->held_ = nullptr;
    }
    // From the start of the hold to the current position. Valid until the next Fill() after the hold.
    std::string_view Passed() const {
      return {window_->bytes_.data() + (start_ - window_->front_offset_),
              static_cast<std::size_t>(window_->Offset() - start_)};
    }

   private:
    JsonWindow* const window_;
    const qint64 start_;
    const bool is_outermost_;
  };

 private:
  QIODevice* const source_;
  std::vector<char> bytes_;
  const char* next_;
  const char* end_;             // of the data; the rest of bytes_ is free
  const char* held_ = nullptr;  // start of the outermost hold
  qint64 front_offset_ = 0;     // position of bytes_.data() in the source
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_JSON_WINDOW_H_
