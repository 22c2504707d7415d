// A guest that reads lines for any number of displays and knows what is down.
#ifndef TESTS_SUPPORT_MODEL_GUEST_H_
#define TESTS_SUPPORT_MODEL_GUEST_H_

#include <map>

#include <QString>
#include <QStringList>

#include "host/guest/guest_model.h"

namespace taviinputmanager {

// Reads lines as a host's send functions get them, without their ends. What it cannot read, or what leaves the ranges
// that the library keeps to, it remembers.
class ModelGuest {
 public:
  void Read(const QString& line);
  // Text has no display.
  void ReadText(const QString& line);

  // Fingers and keys: "display 1: slots 2 11, keys 30"; empty when nothing is down anywhere.
  QString WhatIsDown() const;
  // "display 1: 304 left stick"; empty when all gamepads are at rest.
  QString WhatGamepadsHold() const;
  const QStringList& Unreadable() const { return unreadable_; }

 private:
  std::map<int, tavi::GuestModel> displays_;
  QStringList unreadable_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_MODEL_GUEST_H_
