// Key codes of Linux and scan codes of Windows.
//
// The library expects Windows scan codes (set 1, the extended bit as 0x100). Linux window systems deliver Linux key
// codes, those of its input events. The two agree for the keys of the oldest keyboards and nowhere else.
//
// Threads: any.
#ifndef HOST_SCAN_CODES_H_
#define HOST_SCAN_CODES_H_

namespace tavi {

// X11 counts its key codes from 8, and so do all who took its keyboard descriptions over.
constexpr int kX11KeyOffset = 8;

// The scan code of a key of Linux; 0 for a key that has none.
int ScanCodeOfLinuxKey(int linux_code);

// The other way; 0 for a scan code that no key of Linux has.
int LinuxKeyOfScanCode(int scancode);

}  // namespace tavi

#endif  // HOST_SCAN_CODES_H_
