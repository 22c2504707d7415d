// Records that something went over.
#ifndef TESTS_RECORD_JSON_HOSTILE_RECORDS_H_
#define TESTS_RECORD_JSON_HOSTILE_RECORDS_H_

#include <functional>
#include <random>

#include <QByteArray>
#include <QList>

namespace taviinputmanager {

// Records as the library writes them, and others that are good, or odd but JSON.
QList<QByteArray> RecordsToSpoil();

// Makes up documents: good ones with bytes, pieces of other ones and words of JSON in wrong places.
class HostileRecords {
 public:
  explicit HostileRecords(int seed) : random_(static_cast<unsigned>(seed)), good_(RecordsToSpoil()) {}

  QByteArray Next();
  // The same, but what can still be read is in the layout of the library, once more spoilt or not.
  QByteArray NextWritten();
  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

 private:
  void Spoil(QByteArray* record);
  QByteArray PieceOf(const QByteArray& record);

  std::mt19937 random_;
  const QList<QByteArray> good_;
};

// Calls `visit` with each row of up to `most` of the words.
void ForEachRow(const QList<QByteArray>& words, int most, const std::function<void(const QByteArray&)>& visit);

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_HOSTILE_RECORDS_H_
