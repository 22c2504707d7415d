// Writes JSON to a file.
#ifndef RECORD_JSON_JSON_OUTPUT_H_
#define RECORD_JSON_JSON_OUTPUT_H_

#include <string_view>
#include <vector>

class QIODevice;
class QString;

namespace taviinputmanager {

// Collects bytes and writes them in chunks. Texts and numbers have the form of the JSON library.
class JsonOutput {
 public:
  // `target` outlives this object.
  explicit JsonOutput(QIODevice* target) : target_(target) { chunk_.reserve(kChunkBytes); }

  void Add(std::string_view bytes);
  void AddText(const QString& text);
  void AddInt(int number);
  // Writes the rest. Returns whether the device accepted everything.
  bool Finish();

 private:
  static constexpr std::size_t kChunkBytes = 256 * 1024;

  bool AddPlainText(const QString& text);
  void WriteChunk();

  QIODevice* const target_;
  std::vector<char> chunk_;
  bool is_whole_ = true;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_JSON_OUTPUT_H_
