// The input that a macro creates as if it came from the host.
#ifndef SIMULATORS_MACRO_MACRO_INPUT_H_
#define SIMULATORS_MACRO_MACRO_INPUT_H_

#include <QPointF>
#include <QString>
#include <QtGlobal>

namespace taviinputmanager {

struct MacroCommand;

// Keys, buttons, wheels, text and the switches of the input layer. What is held is recorded in MacroHeldInput, which
// all macros share, so that a switch affects later macros too. Each macro has a virtual pointer of its own.
//
// Main thread only. The handlers process an injected event before the call returns, and it may press or release other
// items, including this macro's key.
class MacroInput {
 public:
  MacroInput();

  // Nothing for a command that creates no such input.
  void Obey(const MacroCommand& command);

  // The name of the virtual pointer.
  qint64 GetVmouseId() const { return vmouse_id_; }

 private:
  void SetVmouseButton(int button, bool press) const;
  void MoveVmouse(const QString& element);

  qint64 vmouse_id_;      // random; no two macros have the same
  QPointF vmouse_point_;  // its position, display pixels
};

}  // namespace taviinputmanager

#endif  // SIMULATORS_MACRO_MACRO_INPUT_H_
