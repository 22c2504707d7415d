// Input as bytes: four for each event or call of a host.
#ifndef FUZZ_EVENT_CODE_H_
#define FUZZ_EVENT_CODE_H_

#include <cstdint>

namespace taviinputmanager::fuzz {

enum class EventVerb : uint8_t {
  kKeyDown,  // scan code: a; with the extended bit: b
  kKeyUp,
  kKeyRepeat,
  kMouseDown,  // button: a; point: b, c
  kMouseUp,
  kMouseDouble,
  kMove,         // point: b, c
  kWheel,        // notches: a, signed; point: b, c
  kRelative,     // counts: b, c, signed
  kTouchBegin,   // number of fingers: a; point of the first: b, c
  kTouchUpdate,  // the same
  kTouchEnd,
  kJoyDown,  // name: a
  kJoyUp,
  kJoyAxis,      // stick: a; position: b, c, signed
  kInputMethod,  // commit or composition: a; which text: b
  kWait,         // milliseconds: a
  kWaitLong,     // 16 milliseconds each: a
  kReset,        // full: a; display, the current one or its number: b
  kDisplay,      // which: a
  kKeymap,       // which: a; package: b
  kOddKeymap,    // of any records: the seed is b, c
  kJoymap,       // which: a
  kBack,
  kTransparent,    // display: a; on: b
  kMousePosition,  // point: b, c
  kConvert,        // point: b, c
  kSensitivity,    // both factors: b, c
  kHost,           // what: a; its value: b, c
  kInitialize,     // members of the table that are null: a, b; no table: c
  kRecord,         // what: a
  kCapture,        // what: a; name: b
  kReplay,         // what: a; speed: b; mode: c
  kRecordFile,     // what: a; which: b
  kSync,           // what: a; target: b
  kRaw,            // what: a; which line: b
  kAsk,
  kCount
};

struct EventCode {
  uint8_t verb;
  uint8_t a;
  uint8_t b;
  uint8_t c;
};

// Any byte is a valid verb.
constexpr EventVerb VerbOf(const EventCode& code) {
  return static_cast<EventVerb>(code.verb % static_cast<int>(EventVerb::kCount));
}

// A pixel of the guest view and of a margin around it, as one byte.
constexpr int kPixelStep = 6;
constexpr int kPixelOffset = -60;
constexpr int ToPixel(uint8_t byte) { return byte * kPixelStep + kPixelOffset; }
constexpr uint8_t FromPixel(int pixel) { return static_cast<uint8_t>((pixel - kPixelOffset) / kPixelStep); }

constexpr const char* kPadNames[] = {"A", "B", "X", "Y", "LB", "RB", "LT", "RT",         "Start", "Back", "LS",  "RS",
                                     "↑", "↓", "←", "→", "0",  "7",  "12", "Left_Stick", "",      "A+B",  "none"};

}  // namespace taviinputmanager::fuzz

#endif  // FUZZ_EVENT_CODE_H_
