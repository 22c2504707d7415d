// A guest that reads lines and knows what is down.
#ifndef TESTS_SUPPORT_MODEL_GUEST_H_
#define TESTS_SUPPORT_MODEL_GUEST_H_

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace taviinputmanager {

// Reads lines as a host's send functions get them, without their ends. What it cannot read it remembers.
class ModelGuest {
 public:
  void Read(const QString& line);
  // Text has no display.
  void ReadText(const QString& line);

  // Fingers and keys: "display 1: slots 2 11, keys 30"; empty when nothing is down anywhere.
  QString WhatIsDown() const;
  // "display 1: 304 LSTICKAXIS"; empty when all gamepads are at rest.
  QString WhatGamepadsHold() const;
  const QStringList& Unreadable() const { return unreadable_; }

 private:
  struct Display {
    QSet<int> slots_down;
    QSet<int> keys_down;
    QSet<QString> pad_held;  // buttons by code; what else is not at rest by the first word of its line
  };

  static bool ReadCommand(const QString& word, const QStringList& fields, Display* display);
  static bool ReadGamepad(const QString& word, const QStringList& fields, Display* display);

  QMap<int, Display> displays_;
  QStringList unreadable_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_MODEL_GUEST_H_
