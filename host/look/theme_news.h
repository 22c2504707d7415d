#ifndef HOST_LOOK_THEME_NEWS_H_
#define HOST_LOOK_THEME_NEWS_H_

#include <QObject>

namespace tavi::theme {

// Signals that the colours have changed; theme::Follow listens. Main thread.
class ThemeNews : public QObject {
  Q_OBJECT

 public:
  static ThemeNews* GetInstance();

 Q_SIGNALS:
  void Changed();
};

}  // namespace tavi::theme

#endif  // HOST_LOOK_THEME_NEWS_H_
