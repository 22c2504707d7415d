// Shares one copy of equal texts.
#ifndef RECORD_JSON_SHARED_TEXTS_H_
#define RECORD_JSON_SHARED_TEXTS_H_

#include <array>
#include <string_view>

#include <QString>

namespace taviinputmanager {

// The most recent texts, indexed by a few of their letters: most actions have the type, the slot and the word of a
// recent one. Time and memory are bounded for records of any length and kind.
class SharedTexts {
 public:
  // ASCII, converted to a text.
  QString Of(std::string_view ascii);
  // The same text, shared with an equal one.
  QString Of(const QString& text);
  // Replaces the text with its shared copy.
  void Share(QString* text);

 private:
  static constexpr std::size_t kMostShared = 16;  // letters; longer texts are hardly ever equal
  static constexpr std::size_t kPlaces = 512;

  template <typename Text>
  QString& PlaceOf(const Text& text);

  std::array<QString, kPlaces> places_;
};

}  // namespace taviinputmanager

#endif  // RECORD_JSON_SHARED_TEXTS_H_
