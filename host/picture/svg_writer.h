#ifndef HOST_PICTURE_SVG_WRITER_H_
#define HOST_PICTURE_SVG_WRITER_H_

#include <initializer_list>
#include <utility>

#include <QByteArray>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QXmlStreamWriter>

namespace tavi {

// Writes a page of SVG that needs nothing but a viewer of it: no scripts, no styles, no other files. Sizes and places
// are user units, which a viewer shows as pixels.
//
// Not bound to a thread.
class SvgWriter {
 public:
  using AttributeList = std::initializer_list<std::pair<const char*, QString>>;

  SvgWriter(const QSizeF& size, const QString& title);

  // An element with others inside, up to Close. More attributes may follow it at once.
  void Open(const char* name, AttributeList attributes);
  void Attribute(const char* name, const QString& value) { xml_.writeAttribute(QLatin1String(name), value); }
  void Close() { xml_.writeEndElement(); }
  void Empty(const char* name, AttributeList attributes);
  // One that holds a text alone, such as a "title", which viewers show beside the pointer.
  void TextElement(const char* name, const QString& text);
  // Text in the viewer's own letters, at the left end of its base line. Characters that no XML may hold are replaced.
  void Text(const QPointF& place, const QString& text, AttributeList attributes = {});

  // The whole page, UTF-8. Nothing can be written after it.
  QByteArray Finish();

  // With one digit behind the point.
  static QString Number(double value) { return QString::number(value, 'f', 1); }

 private:
  void Attributes(AttributeList attributes);

  QByteArray bytes_;
  QXmlStreamWriter xml_;
};

}  // namespace tavi

#endif  // HOST_PICTURE_SVG_WRITER_H_
