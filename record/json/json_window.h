// Reading a device piece by piece.
#ifndef RECORD_JSON_JSON_WINDOW_H_
#define RECORD_JSON_JSON_WINDOW_H_

#include <string_view>
#include <vector>

#include <QtGlobal>

class QIODevice;

namespace taviinputmanager {

// What a device holds, from where it stands to its end, as a window that moves over it. The window is a copy: whatever
// becomes of the file behind it, what is in it stays. A device that fails is at its end.
class JsonWindow {
 public:
  static constexpr int kUsualBytes = 128 * 1024;

  // `source` is open and outlives this. At least one byte.
  JsonWindow(QIODevice* source, int bytes);
  JsonWindow(const JsonWindow&) = delete;
  JsonWindow& operator=(const JsonWindow&) = delete;

  // What is in the window and still ahead.
  const char* Begin() const { return next_; }
  const char* End() const { return end_; }
  // Moves on, to a place in the window.
  void MoveTo(const char* place) { next_ = place; }
  // Reads more behind the end. False at the end of the source. All pointers into the window are stale then.
  bool Fill();
  // Whether there is another byte at Begin().
  bool HasByte() { return next_ != end_ || Fill(); }
  // Whether as many bytes are in the window.
  bool HasBytes(std::size_t count) {
    while (static_cast<std::size_t>(end_ - next_) < count) {
      if (!Fill()) return false;
    }
    return true;
  }
  // Of Begin(), from where the window began.
  qint64 Offset() const { return front_offset_ + (next_ - bytes_.data()); }

  // While one lives, what lies ahead stays in the window when it has been passed; the window grows for it, if need be.
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
    // From the start of the hold to where the window stands. Until the next Fill() after the hold.
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
  const char* end_;             // of what was read; the rest of bytes_ is free
  const char* held_ = nullptr;  // start of the outermost hold
  qint64 front_offset_ = 0;     // of bytes_.data() in the source
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_JSON_WINDOW_H_
