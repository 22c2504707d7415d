// The sender's interface to the recorder. Declared here, where lines are sent; defined where they are recorded.
#ifndef CORE_RECORDER_OFFER_H_
#define CORE_RECORDER_OFFER_H_

class QString;

namespace taviinputmanager {

class LineBuffer;

// A line that was sent to a primary display, and a text line. Both include their newline, which the recorder does not
// store.
void OfferEventLine(const LineBuffer& line);
void OfferEventLine(const QString& line);
void OfferTextLine(const QString& line);
// Whether a line would currently be recorded: otherwise it need not be converted to a text.
bool IsLineRecorded();

}  // namespace taviinputmanager

#endif  // CORE_RECORDER_OFFER_H_
