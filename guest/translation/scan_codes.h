// Keys that reach the guest by a host's scan code, since hosts have no guest code for them.
#ifndef GUEST_TRANSLATION_SCAN_CODES_H_
#define GUEST_TRANSLATION_SCAN_CODES_H_

namespace taviguest {

// The key of Linux with this scan code of Windows (set 1, the extended bit as 0x100); 0 where there is none. Only codes
// from 0x100 on can be told from Linux' own.
int KeyOfExtendedScanCode(int scancode);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_SCAN_CODES_H_
