// A guest that reads lines and knows what is down.
#ifndef TESTS_SUPPORT_MODEL_GUEST_H_
#define TESTS_SUPPORT_MODEL_GUEST_H_

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

namespace taviinputmanager {

// Reads lines as a host's send function gets them, without their ends. What it cannot read it remembers.
class ModelGuest {
 public:
  void Read(const QString& line);

  // "display 1: slots 2 11, keys 30"; empty when nothing is down anywhere.
  QString WhatIsDown() const;
  const QStringList& Unreadable() const { return unreadable_; }

 private:
  struct Display {
    QSet<int> slots_down;
    QSet<int> keys_down;
  };

  static bool ReadCommand(const QString& word, const QStringList& fields, Display* display);

  QMap<int, Display> displays_;
  QStringList unreadable_;
};

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_MODEL_GUEST_H_
