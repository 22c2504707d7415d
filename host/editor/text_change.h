#ifndef HOST_EDITOR_TEXT_CHANGE_H_
#define HOST_EDITOR_TEXT_CHANGE_H_

#include <QByteArray>

namespace tavi {

// The difference between two texts, as one replaced range of bytes.
struct TextChange {
  bool IsEmpty() const { return removed.isEmpty() && inserted.isEmpty(); }

  QByteArray AppliedTo(const QByteArray& before) const;
  QByteArray RevertedFrom(const QByteArray& after) const;

  int at = 0;  // bytes from the start
  QByteArray removed;
  QByteArray inserted;
};

// The shortest such change.
TextChange ChangeBetween(const QByteArray& before, const QByteArray& after);

}  // namespace tavi

#endif  // HOST_EDITOR_TEXT_CHANGE_H_
