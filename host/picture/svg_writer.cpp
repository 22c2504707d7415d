#include "host/picture/svg_writer.h"

#include <string>

namespace tavi {

namespace {

// Characters that XML does not allow are replaced by U+FFFD.
QString Printable(const QString& text) {
  std::u32string characters = text.toStdU32String();  // unpaired surrogates are replaced here
  for (char32_t& character : characters) {
    const bool is_bad = character < ' ' || character == 0xFFFE || character == 0xFFFF;
    if (is_bad) character = QChar(QChar::ReplacementCharacter).unicode();
  }
  return QString::fromStdU32String(characters);
}

}  // namespace

SvgWriter::SvgWriter(const QSizeF& size, const QString& title) : xml_(&bytes_) {
  const QString width = Number(size.width());
  const QString height = Number(size.height());
  xml_.setAutoFormatting(true);
  xml_.setAutoFormattingIndent(1);
  xml_.writeStartDocument();
  xml_.writeStartElement(QStringLiteral("svg"));
  xml_.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
  Attributes({{"width", width},
              {"height", height},
              {"viewBox", QStringLiteral("0 0 %1 %2").arg(width, height)},
              {"font-family", "sans-serif"},
              {"stroke", "none"},
              {"font-size", "13"}});
  TextElement("title", title);
}

void SvgWriter::Open(const char* name, AttributeList attributes) {
  xml_.writeStartElement(QLatin1String(name));
  Attributes(attributes);
}

void SvgWriter::Empty(const char* name, AttributeList attributes) {
  xml_.writeEmptyElement(QLatin1String(name));
  Attributes(attributes);
}

void SvgWriter::TextElement(const char* name, const QString& text) {
  xml_.writeTextElement(QLatin1String(name), Printable(text));
}

void SvgWriter::Text(const QPointF& place, const QString& text, AttributeList attributes) {
  Open("text", {{"x", Number(place.x())}, {"y", Number(place.y())}});
  Attributes(attributes);
  xml_.writeCharacters(Printable(text));
  Close();
}

QByteArray SvgWriter::Finish() {
  xml_.writeEndDocument();
  return bytes_;
}

void SvgWriter::Attributes(AttributeList attributes) {
  for (const auto& attribute : attributes) xml_.writeAttribute(QLatin1String(attribute.first), attribute.second);
}

}  // namespace tavi
