// From the host's key codes to the guest's.
#ifndef CORE_KEY_CODE_CONVERTER_H_
#define CORE_KEY_CODE_CONVERTER_H_

namespace taviinputmanager {

// The guest speaks Linux input event codes. The host delivers Windows scan codes with the extended bit as 0x100.
// Stateless; any thread.
class KeyCodeConverter {
 public:
  static KeyCodeConverter* GetInstance() {
    static KeyCodeConverter instance;
    return &instance;
  }

  // Codes without a row of their own pass through; the unset code is Escape.
  int KeyToGuestCode(int scan) const {
    const bool is_plain = scan >= 0 && scan < kFirstExtendedScan && scan != kPauseScan;
    return is_plain ? scan : LookUpKey(scan);  // most keys, at a glance
  }
  // Takes a Qt::MouseButton. -1 for a button that the guest does not know.
  int MouseButtonToGuestCode(int button) const;
  // Whether a guest code is a key that moves or controls instead of writing, in a text field.
  bool IsControlKey(int code) const;

 private:
  static constexpr int kPauseScan = 69;
  static constexpr int kFirstExtendedScan = 256;  // codes below stay as they are, but for Pause

  static int LookUpKey(int scan);
};

// Guest codes with a meaning of their own.
constexpr int kEscapeCode = 1;
constexpr int kBackCode = 158;  // Android's back key

}  // namespace taviinputmanager

#endif  // CORE_KEY_CODE_CONVERTER_H_
