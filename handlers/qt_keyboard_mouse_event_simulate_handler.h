// Where a host key or mouse button meets the keymap.
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

// Finds the item of a key, chords of two keys included, and hands the press or release to the item's simulator. What no
// item takes: Escape, which may act as the guest's back key, and the left button, which is a finger.
//
// Two QObject bases, so never a sender, receiver or context of a connection. Main thread only.
class QtKeyboardMouseEventSimulateHandler : public QtKeyboardEventHandler, public QtMouseEventHandler {
 public:
  static QtKeyboardMouseEventSimulateHandler* GetInstance() {
    static QtKeyboardMouseEventSimulateHandler instance;
    return &instance;
  }

  void Initialize(InputManagerCallbacks* callbacks);
  void SetConfig(tavikeymapmanager::KeymapConfig* config);
  // The config is about to go: follows no pointer into it any more and tells nobody.
  void ForgetConfig();
  // Forgets armed and chorded keys and the real mouse's buttons; those of virtual pointers stay.
  void ResetKeyState();

  // The first item that answers to `key` alone, or null. Tells the host that a mapped device is in use.
  tavikeymapmanager::ConfigItem* FindConfigItem(const tavikeymapmanager::ConfigKey& key) const;
  // What an item does at run time; null for an item that does nothing by itself.
  static EventSimulator* GetSimulator(const tavikeymapmanager::ConfigItem* item);

  // A macro's press or release of a key, which has one number for both codes; whether it was used up.
  bool SetVirtualKey(int code, bool press);

  // For a press or release: whether an item answers to the button.
  bool IsMouseButtonMapped(QMouseEvent* event) const;
  // For a move: whether the left button is held and an item answers to it.
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

  // Through the first of the two bases, which is as good as the other.
  void SendEvent(const LineBuffer& command) { static_cast<QtKeyboardEventHandler*>(this)->SendEvent(command); }

  // Of the items as they are now.
  const tavikeymapmanager::ItemIndex& Index() const;
  tavikeymapmanager::ConfigItem* FindPressedItem(const tavikeymapmanager::ConfigKey& key);
  tavikeymapmanager::ConfigItem* FindReleasedItem(const tavikeymapmanager::ConfigKey& key);
  bool IsEscapeToGuest() const;
  // Whether an Escape that is not mapped acts as back, for a real key.
  bool IsEscapeBack() const;
  // Where a macro works the key, there is no event.
  bool PressKey(tavikeymapmanager::ConfigKey* key, const QKeyEvent* event);
  bool ReleaseKey(tavikeymapmanager::ConfigKey* key, const QKeyEvent* event);
  // Both take an Escape that is not mapped, and tell whether it was used up.
  bool PressEscape(const QKeyEvent* event);
  bool ReleaseEscape(const QKeyEvent* event);
  void ClearCurrentKey();
  // What isConfigKeyMatch says of the keymap.
  bool IsKeyMatch(const tavikeymapmanager::ConfigKey& configured, const tavikeymapmanager::ConfigKey& pressed) const;
  // Whether an item takes Escape, alone or in a chord with the key that is armed, or the guest gets it.
  bool IsEscapeOccupied() const;
  // Tells the host whether Escape is taken.
  void UpdateEscapeState();

  bool IsMapped(Qt::MouseButton button) const;
  void PressButton(QMouseEvent* event, tavikeymapmanager::ConfigKey* key);
  void ReleaseButton(QMouseEvent* event, tavikeymapmanager::ConfigKey* key);
  void PressLeft(QMouseEvent* event, tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  void ReleaseLeft(QMouseEvent* event, tavikeymapmanager::ConfigItem* item, tavikeymapmanager::ConfigKey* key);
  void MoveLeftFinger(QMouseEvent* event);
  // The finger of a virtual pointer, made at its first use; null when the macro pool has no slot left.
  std::shared_ptr<MouseSlotManager> GetMouseSlot(qint64 id);
  // The finger that an event moves: the real mouse's, or its virtual pointer's. May be null, as above. Kept by whoever
  // works with it: the host may release it from inside a question or a send.
  std::shared_ptr<MouseSlotManager> FingerOf(const QMouseEvent* event);
  void GiveBackMouseSlot(qint64 id);
  void SetButton(qint64 id, Qt::MouseButton button, bool down);
  bool IsButtonHeld(qint64 id, Qt::MouseButton button) const;

  tavikeymapmanager::KeymapConfig* config_ = nullptr;                // the input manager's
  mutable tavikeymapmanager::ItemIndex index_;                       // of its items, made as they are searched
  std::shared_ptr<MouseSlotManager> default_mouse_slot_;             // the singleton, not owned
  std::map<qint64, std::shared_ptr<MouseSlotManager>> mouse_slots_;  // by virtual pointer
  const bool is_key_match_own_;                                      // nobody stands in front of isConfigKeyMatch
  InputManagerCallbacks* callbacks_ = nullptr;                       // the host's
  tavikeymapmanager::ConfigKey escape_key_;   // what the state of Escape is asked by; never changes
  tavikeymapmanager::ConfigKey current_key_;  // pressed last and taken by nothing: may be the first key of a chord
  QMap<int, tavikeymapmanager::ConfigItem*> chord_items_;  // by scan code of the second key, while that is down
  QMap<qint64, unsigned> mouse_buttons_;                   // Qt::MouseButton bits held, by pointer; 0 is the real mouse
  mutable KnownKeys keys_{tavikeymapmanager::keywords::kDeviceKeyboard};
  mutable KnownKeys buttons_{tavikeymapmanager::keywords::kDeviceMouse};
};

}  // namespace taviinputmanager

#endif  // HANDLERS_QT_KEYBOARD_MOUSE_EVENT_SIMULATE_HANDLER_H_
