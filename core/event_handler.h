// The base class of everything that handles events and sends lines: handlers, simulators, and workers of the main
// thread.
#ifndef CORE_EVENT_HANDLER_H_
#define CORE_EVENT_HANDLER_H_

#include <QObject>
#include <QString>

namespace taviinputmanager {

class InputEventSender;
class LineBuffer;

// Main thread. An empty command means that there is nothing to send, and is ignored.
class EventHandler : public QObject {
  Q_OBJECT

 public:
  EventHandler();
  ~EventHandler() override;

  // To the current display.
  void SendEvent(const LineBuffer& command);
  void SendEvent(const QString& command);
  void SendEventTo(const LineBuffer& command, int display);
  void SendEventTo(const QString& command, int display);
  void SendText(const QString& command);

 private:
  InputEventSender* sender_;  // the singleton
};

}  // namespace taviinputmanager

#endif  // CORE_EVENT_HANDLER_H_
