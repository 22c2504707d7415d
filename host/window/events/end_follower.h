#ifndef HOST_WINDOW_EVENTS_END_FOLLOWER_H_
#define HOST_WINDOW_EVENTS_END_FOLLOWER_H_

#include <QObject>

class QScrollBar;

namespace tavi {

// Keeps a list scrolled to its end while it grows and when its size changes, unless the user has scrolled up.
//
// Main thread.
class EndFollower : public QObject {
  Q_OBJECT

 public:
  // Becomes the bar's child.
  explicit EndFollower(QScrollBar* bar);

  bool IsFollowing() const { return is_following_; }
  void GoToEnd();

 private:
  QScrollBar* bar_;
  bool is_following_ = true;
};

}  // namespace tavi

#endif  // HOST_WINDOW_EVENTS_END_FOLLOWER_H_
