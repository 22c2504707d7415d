// Keys that are sent as the host's scan code, because the host has no guest code for them.
#ifndef GUEST_TRANSLATION_SCAN_CODES_H_
#define GUEST_TRANSLATION_SCAN_CODES_H_

namespace taviguest {

// The Linux key of this Windows scan code (set 1, the extended bit as 0x100); 0 if there is none. Only codes from 0x100
// on can be distinguished from Linux codes.
int KeyOfExtendedScanCode(int scancode);

}  // namespace taviguest

#endif  // GUEST_TRANSLATION_SCAN_CODES_H_
