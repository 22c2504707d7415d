#ifndef CORE_CLOCK_H_
#define CORE_CLOCK_H_
#include <QPoint>
#include <QTime>
namespace taviinputmanager {
class Clock {
 public:
  static qint64 NowMs();
  static QTime TimeOfDay();
  static void Sleep(int ms);
  static QPoint Pointer();
  static void FindVirtualTime();
};
}  // namespace taviinputmanager
#endif
