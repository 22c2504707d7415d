#include "host/editor/text_change.h"

#include <algorithm>

namespace tavi {

QByteArray TextChange::AppliedTo(const QByteArray& before) const {
  return QByteArray(before).replace(at, removed.size(), inserted);
}

QByteArray TextChange::RevertedFrom(const QByteArray& after) const {
  return QByteArray(after).replace(at, inserted.size(), removed);
}

TextChange ChangeBetween(const QByteArray& before, const QByteArray& after) {
  const int shorter = std::min(before.size(), after.size());
  int front = 0;
  while (front < shorter && before[front] == after[front]) ++front;
  int back = 0;
  while (back < shorter - front && before[before.size() - 1 - back] == after[after.size() - 1 - back]) ++back;
  return {front, before.mid(front, before.size() - front - back), after.mid(front, after.size() - front - back)};
}

}  // namespace tavi
