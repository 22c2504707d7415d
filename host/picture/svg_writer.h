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

// Writes an SVG page that needs only a viewer: no scripts, no styles, no other files. Sizes and positions are in user
// units, which a viewer shows as pixels.
//
// Not bound to a thread.
class SvgWriter {
 public:
  using AttributeList = std::initializer_list<std::pair<const char*, QString>>;

  SvgWriter(const QSizeF& size, const QString& title);

  // Opens an element, up to Close. More attributes may follow directly.
  void Open(const char* name, AttributeList attributes);
  void Attribute(const char* name, const QString& value) { xml_.writeAttribute(QLatin1String(name), value); }
  void Close() { xml_.writeEndElement(); }
  void Empty(const char* name, AttributeList attributes);
  // An element that contains only text, such as a "title", which viewers show as a tooltip.
  void TextElement(const char* name, const QString& text);
  // Text in the viewer's own font, starting at its baseline's left end. Characters that XML does not allow are
  // replaced.
  void Text(const QPointF& place, const QString& text, AttributeList attributes = {});

  // The whole page, UTF-8. Nothing may be written after it.
  QByteArray Finish();

  // With one decimal.
  static QString Number(double value) { return QString::number(value, 'f', 1); }

 private:
  void Attributes(AttributeList attributes);

  QByteArray bytes_;
  QXmlStreamWriter xml_;
};

}  // namespace tavi

#endif  // HOST_PICTURE_SVG_WRITER_H_
