#include "keymapmanager/nearest_word.h"

#include <algorithm>

#include <QVector>

namespace tavikeymapmanager {

namespace {

constexpr int kLongestWord = 64;  // much longer than any known word: not compared

qsizetype ToThirds(qsizetype length) { return std::max<qsizetype>(1, (length + 2) / 3); }

// Edit distance with swaps of neighbours, each counted as 1.
int Distance(const QString& a, const QString& b) {
  const int width = static_cast<int>(b.size()) + 1;
  QVector<int> before(width), above(width), row(width);
  for (int j = 0; j < width; ++j) above[j] = j;
  for (int i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (int j = 1; j < width; ++j) {
      const int changed = above[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({changed, above[j] + 1, row[j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
    }
    before.swap(above);
    above.swap(row);
  }
  return above[width - 1];
}

}  // namespace

QString NearestWord(const QString& word, const QStringList& known) {
  if (word.isEmpty() || word.size() > kLongestWord) return {};
  const QString folded = word.toLower();
  QString nearest;
  int nearest_distance = kLongestWord;
  for (const QString& candidate : known) {
    const qsizetype limit = ToThirds(candidate.size());
    if (std::abs(candidate.size() - word.size()) > limit) continue;
    const int distance = Distance(folded, candidate.toLower());
    // A word of one letter is close to every other: only its case may differ.
    if (distance > limit || (distance > 0 && std::min(candidate.size(), word.size()) < 2)) continue;
    if (distance >= nearest_distance) continue;
    nearest = candidate;
    nearest_distance = distance;
  }
  return nearest;
}

QString DidYouMean(const QString& word, const QStringList& known) {
  const QString nearest = NearestWord(word, known);
  return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(nearest);
}

}  // namespace tavikeymapmanager
