// Applies the keymap to host keys and mouse buttons.
#ifndef HANDLERS_QT_KEYBOARD_MOUSE_EVENT_SIMULATE_HANDLER_H_
#define HANDLERS_QT_KEYBOARD_MOUSE_EVENT_SIMULATE_HANDLER_H_

#include <map>
#include <memory>

#include <QMap>

#include "handlers/known_keys.h"
#include "handlers/qt_keyboard_event_handler.h"
#include "handlers/qt_mouse_event_handler.h"
#include "keymap/config_key.h"
#include "keymap/item_index.h"

namespace tavikeymapmanager {
struct ConfigItem;
struct KeymapConfig;
}  // namespace tavikeymapmanager

namespace taviinputmanager {

struct InputManagerCallbacks;
class EventSimulator;
class MouseSlotManager;

// Finds the item of a key, including chords of two keys, and passes the press or release to the item's simulator. It
// also handles what no item uses: Escape, which may act as the guest's back key, and the left button, which is a
// contact.
//
// Has two QObject bases, so it must not be a sender, receiver or context of a connection. Main thread only.
class QtKeyboardMouseEventSimulateHandler : public QtKeyboardEventHandler, public QtMouseEventHandler {
 public:
  static QtKeyboardMouseEventSimulateHandler* GetInstance() {
    static QtKeyboardMouseEventSimulateHandler instance;
    return &instance;
  }

  void Initialize(InputManagerCallbacks* callbacks);
  void SetConfig(tavikeymapmanager::KeymapConfig* config);
  // The config is about to be deleted: follows no pointer into it anymore, and calls nobody.
  void ForgetConfig();
  // Clears armed and chorded keys and the buttons of the real mouse; those of virtual pointers stay.
  void ResetKeyState();

  // The first item that matches `key` alone, or null. Reports to the host that a mapped device is in use.
  tavikeymapmanager::ConfigItem* FindConfigItem(const tavikeymapmanager::ConfigKey& key) const;
  // The simulator of an item; null for an item without an effect of its own.
  static EventSimulator* GetSimulator(const tavikeymapmanager::ConfigItem* item);

  // A macro's press or release of a key, which has one number for both codes; whether it was consumed.
  bool SetVirtualKey(int code, bool press);

  // For a press or release: whether an item matches the button.
  bool IsMouseButtonMapped(QMouseEvent* event) const;
  // For a move: whether the left button is held and an item matches it.
  bool IsHeldLeftMapped(QMouseEvent* event) const;

  bool OnKeyPress(QKeyEvent* event) override;
  bool OnKeyRelease(QKeyEvent* event) override;
  bool AcceptsAutoRepeat(QKeyEvent* event) override;

  void OnMousePress(QMouseEvent* event) override;
  void OnMouseRelease(QMouseEvent* event) override;
  void OnMouseMove(QMouseEvent* event) override;

 private:
  QtKeyboardMouseEventSimulateHandler();
  ~QtKeyboardMouseEventSimulateHandler() override;

  // Through the first of the two bases; the other would do as well.
  void SendEvent(const LineBuffer& command) { static_cast<QtKeyboardEventHandler*>(this)->SendEvent(command); }

  // For the current items.
  const tavikeymapmanager::ItemIndex& Index() const;
  tavikeymapmanager::ConfigItem* FindPressedItem(const tavikeymapmanager::ConfigKey& key);
  tavikeymapmanager::ConfigItem* FindReleasedItem(const tavikeymapmanager::ConfigKey& key);
  bool IsEscapeToGuest() const;
  // Whether an unmapped Escape acts as back, for a real key.
  bool IsEscapeBack() const;
  // The event is null if a macro presses the key.
  bool PressKey(tavikeymapmanager::ConfigKey* key, const QKeyEvent* event);
  bool ReleaseKey(tavikeymapmanager::ConfigKey* key, const QKeyEvent* event);
  // Both handle an unmapped Escape, and return whether it was consumed.
  bool PressEscape(const QKeyEvent* event);
  bool ReleaseEscape(const QKeyEvent* event);
  void ClearCurrentKey();
  // The result of isConfigKeyMatch for the keymap.
  bool IsKeyMatch(const tavikeymapmanager::ConfigKey& configured, const tavikeymapmanager::ConfigKey& pressed) const;
  // Whether Escape is consumed by an item, alone or in a chord with the armed key, or sent to the guest.
  bool IsEscapeOccupied() const;
  // Reports to the host whether Escape is taken.
  void UpdateEscapeState();

  bool IsMapped(Qt::MouseButton button) const;
  void PressButton(QMouseEvent* event, tavikeymapmanager::ConfigKey* key);
  void ReleaseButton(QMouseEvent* event, tavikeymapmanager::ConfigKey* key);
  void PressLeft(QMouseEvent* event, tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  void ReleaseLeft(QMouseEvent* event, tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  void MoveLeftFinger(QMouseEvent* event);
  // The contact of a virtual pointer, created at its first use; null if the macro pool has no slot left.
  std::shared_ptr<MouseSlotManager> GetMouseSlot(qint64 id);
  // The contact that an event moves: the real mouse's, or its virtual pointer's. May be null, as above. Callers keep a
  // reference: the host may release it during a call.
  std::shared_ptr<MouseSlotManager> FingerOf(const QMouseEvent* event);
  void GiveBackMouseSlot(qint64 id);
  void SetButton(qint64 id, Qt::MouseButton button, bool down);
  bool IsButtonHeld(qint64 id, Qt::MouseButton button) const;

  tavikeymapmanager::KeymapConfig* config_ = nullptr;                // owned by the input manager
  mutable tavikeymapmanager::ItemIndex index_;                       // of its items, created as they are searched
  std::shared_ptr<MouseSlotManager> default_mouse_slot_;             // the singleton, not owned
  std::map<qint64, std::shared_ptr<MouseSlotManager>> mouse_slots_;  // by virtual pointer
  const bool is_key_match_own_;                                      // no other function overrides isConfigKeyMatch
  InputManagerCallbacks* callbacks_ = nullptr;                       // owned by the host
  tavikeymapmanager::ConfigKey escape_key_;   // the argument for the state of Escape; never changes
  tavikeymapmanager::ConfigKey current_key_;  // pressed last without an effect: may be the first key of a chord
  QMap<int, tavikeymapmanager::ConfigItem*> chord_items_;  // by scan code of the second key, while that is down
  QMap<qint64, unsigned> mouse_buttons_;                   // Qt::MouseButton bits held, by pointer; 0 is the real mouse
  mutable KnownKeys keys_{tavikeymapmanager::keywords::kDeviceKeyboard};
  mutable KnownKeys buttons_{tavikeymapmanager::keywords::kDeviceMouse};
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_MOUSE_EVENT_SIMULATE_HANDLER_H_
