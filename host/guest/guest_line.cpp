#include "host/guest/guest_line.h"

namespace tavi {

using Kind = GuestLine::Kind;

// A text is taken from the line itself: not every QString is valid Unicode.
GuestLine ParseGuestLine(const QString& line) {
  const taviguest::GuestLine parsed = taviguest::ParseGuestLine(line.toStdString());
  GuestLine result;
  result.kind = parsed.kind;
  result.numbers = QVector<double>(parsed.numbers.begin(), parsed.numbers.end());
  const bool has_text = parsed.kind == Kind::kText || parsed.kind == Kind::kTextControl;
  if (has_text) result.text = line.mid(line.indexOf(QLatin1Char(':')) + 1);
  return result;
}

AddressedLine SplitDisplay(const QString& event) {
  const std::string bytes = event.toStdString();
  const taviguest::AddressedLine addressed = taviguest::SplitDisplay(bytes);
  if (addressed.line.data() == nullptr) return {};
  return {addressed.display, event.mid(event.indexOf(QLatin1Char(':')) + 1)};
}

}  // namespace tavi
