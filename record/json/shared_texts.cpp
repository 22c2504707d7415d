#include "record/json/shared_texts.h"

#include <QLatin1String>

namespace taviinputmanager {
namespace {

unsigned LetterAt(std::string_view text, std::size_t index) { return static_cast<unsigned char>(text[index]); }
unsigned LetterAt(const QString& text, std::size_t index) { return text.at(static_cast<int>(index)).unicode(); }

QLatin1String Plain(std::string_view ascii) { return QLatin1String(ascii.data(), static_cast<int>(ascii.size())); }

}  // namespace

// Words differ at their ends, numbers in any digit.
template <typename Text>
QString& SharedTexts::PlaceOf(const Text& text) {
  const auto size = static_cast<std::size_t>(text.size());
  const std::size_t mix = size + 7 * LetterAt(text, 0) + 31 * LetterAt(text, size / 2) + 127 * LetterAt(text, size - 1);
  return places_[mix % kPlaces];
}

QString SharedTexts::Of(std::string_view ascii) {
  if (ascii.empty() || ascii.size() > kMostShared) return QString(Plain(ascii));
  QString& place = PlaceOf(ascii);
  if (place != Plain(ascii)) place = Plain(ascii);
  return place;
}

QString SharedTexts::Of(const QString& text) {
  QString shared = text;
  Share(&shared);
  return shared;
}

void SharedTexts::Share(QString* text) {
  if (text->isEmpty() || text->size() > static_cast<int>(kMostShared)) return;
  QString& place = PlaceOf(*text);
  if (place.isSharedWith(*text)) return;
  if (place == *text) {
    *text = place;
  } else {
    place = *text;
  }
}

}  // namespace taviinputmanager
