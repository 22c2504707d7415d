// Damaged records.
#ifndef TESTS_RECORD_JSON_HOSTILE_RECORDS_H_
#define TESTS_RECORD_JSON_HOSTILE_RECORDS_H_

#include <functional>
#include <random>

#include <QByteArray>
#include <QList>

namespace taviinputmanager {

// Records in the library's format, and others that are valid, or unusual JSON.
QList<QByteArray> RecordsToSpoil();

// Generates documents: valid ones with bytes, parts of other ones and words of JSON in wrong places.
class HostileRecords {
 public:
  explicit HostileRecords(int seed) : random_(static_cast<unsigned>(seed)), good_(RecordsToSpoil()) {}

  QByteArray Next();
  // The same, but what can still be read is in the library's format, damaged again or not.
  QByteArray NextWritten();
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

 private:
  void Spoil(QByteArray* record);
  QByteArray PieceOf(const QByteArray& record);

  std::mt19937 random_;
  const QList<QByteArray> good_;
};

// Calls `visit` with each sequence of up to `most` of the words.
void ForEachRow(const QList<QByteArray>& words, int most, const std::function<void(const QByteArray&)>& visit);

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_HOSTILE_RECORDS_H_
