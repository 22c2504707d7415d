// What the sender offers to the recorder. Declared here, where lines are sent; defined where they are recorded.
#ifndef CORE_RECORDER_OFFER_H_
#define CORE_RECORDER_OFFER_H_

class QString;

namespace taviinputmanager {

class LineBuffer;

// A line that went to a primary display, and a text line. Both with their newline, which the recorder does not keep.
void OfferEventLine(const LineBuffer& line);
void OfferEventLine(const QString& line);
void OfferTextLine(const QString& line);
// Whether an offer would be taken up at present: no line has to become a text for one that is not.
bool IsLineRecorded();

}  // namespace taviinputmanager

#endif  // CORE_RECORDER_OFFER_H_
