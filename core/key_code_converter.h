// Converts the host's key codes to the guest's.
#ifndef CORE_KEY_CODE_CONVERTER_H_
#define CORE_KEY_CODE_CONVERTER_H_

namespace taviinputmanager {

// The guest uses Linux input event codes. The host delivers Windows scan codes with the extended bit as 0x100.
// Stateless; any thread.
class KeyCodeConverter {
 public:
  static KeyCodeConverter* GetInstance() {
    static KeyCodeConverter instance;
    return &instance;
  }

  // Codes without a row of their own are unchanged; the unset code is Escape.
  int KeyToGuestCode(int scan) const {
    const bool is_plain = scan >= 0 && scan < kFirstExtendedScan && scan != kPauseScan;
    return is_plain ? scan : LookUpKey(scan);  // most keys, without a search
  }
  // Takes a Qt::MouseButton. -1 for a button that the guest does not have.
  int MouseButtonToGuestCode(int button) const;
  // Whether a guest code is a key that navigates or controls in a text field instead of typing.
  bool IsControlKey(int code) const;

 private:
  static constexpr int kPauseScan = 69;
  static constexpr int kFirstExtendedScan = 256;  // lower codes are unchanged, except Pause

  static int LookUpKey(int scan);
};

// Guest codes with a special meaning.
constexpr int kEscapeCode = 1;
constexpr int kBackCode = 158;  // Android's back key

}  // namespace taviinputmanager

#endif  // CORE_KEY_CODE_CONVERTER_H_
