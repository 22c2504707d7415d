// A guest that parses lines for any number of displays and knows what is down.
#ifndef TESTS_SUPPORT_MODEL_GUEST_H_
#define TESTS_SUPPORT_MODEL_GUEST_H_

#include <map>

#include <QString>
#include <QStringList>

#include "host/guest/guest_model.h"

namespace taviinputmanager {

// Parses lines as a host's send functions get them, without their ends. It records lines that it cannot parse, or that
// leave the library's ranges.
class ModelGuest {
 public:
  void Read(const QString& line);
  // Text has no display.
  void ReadText(const QString& line);

  // Contacts and keys: "display 1: slots 2 11, keys 30"; empty if nothing is down anywhere.
  QString WhatIsDown() const;
  // "display 1: 304 left stick"; empty if all gamepads are at rest.
  QString WhatGamepadsHold() const;
  const QStringList& Unreadable() const { return unreadable_; }

 private:
  std::map<int, tavi::GuestModel> displays_;
  QStringList unreadable_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_MODEL_GUEST_H_
