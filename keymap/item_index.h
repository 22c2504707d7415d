// Finds the items of a keymap by their keys without a linear search.
#ifndef KEYMAP_ITEM_INDEX_H_
#define KEYMAP_ITEM_INDEX_H_

#include <algorithm>
#include <vector>

#include <QHash>
#include <QList>

#include "keymap/composable_config_item.h"
#include "keymap/config_item.h"
#include "keymap/item_classes.h"

namespace tavikeymapmanager {

// Gives the same results as a linear search of the list, in its order. Items that are exactly of a contract class are
// found by the keys that they had when the index was made. An item of any other class has its own matching: it keeps
// its position in the list, and each search that gets that far calls it. A Tip never matches, whatever its class.
//
// Owns neither the items nor the list. The items must live for as long as they are searched. Main thread.
class ItemIndex {
 public:
  // Builds the index of `items`, unless it already is that of the same, unchanged list.
  void Follow(const QList<ConfigItem*>& items) {
    if (!items_.isSharedWith(items)) Make(items);
  }
  void Clear() { *this = ItemIndex(); }

  // The first item that `key` alone triggers, or null.
  ConfigItem* FindAlone(const ConfigKey& key) const {
    return strangers_.empty() ? ItemOf(FirstAloneEntry(key)) : FindAloneAmongStrangers(key);
  }

  // The first item that the chord of `armed` and then `pressed` triggers, or null.
  ConfigItem* FindChord(const ConfigKey& armed, const ConfigKey& pressed) const {
    const Entry* entry = FirstChordEntry(armed, pressed);
    for (const Stranger& stranger : strangers_) {
      if (entry && stranger.position > entry->position) break;
      if (stranger.composable && stranger.composable->IsChordMatch(armed, pressed)) return stranger.item;
    }
    return ItemOf(entry);
  }

  // Whether `configured` alone, or the chord of `configured` and then `pressed`, triggers an item: whether one of the
  // searches would find it.
  bool IsFound(const ConfigKey& configured, const ConfigKey& pressed) const {
    if (!strangers_.empty()) return IsMatchInList(configured, pressed);          // each is called for both
    if (HeadOf(configured) == kNone && !MayBeInChord(configured)) return false;  // as for most keys
    return IsFoundInEntries(configured, pressed);
  }

  // The same for the current keys: checks every item.
  bool IsMatch(const ConfigKey& configured, const ConfigKey& pressed) const {
    return (!strangers_.empty() || MayMatch(configured, pressed)) && IsMatchInList(configured, pressed);
  }

 private:
  // A key. Equal device names share their data, so that comparing them is one comparison of pointers.
  struct KnownKey {
    explicit KnownKey(const ConfigKey& its_key)
        : device(Shared(its_key.device)),
          text(its_key.text),
          scancode(its_key.scancode),
          is_joystick(IsJoystickKey(its_key)) {}

    // Like IsSameKey.
    bool Is(const ConfigKey& key) const {
      if (!IsSameText(device, key.device)) return false;
      return is_joystick ? IsSameText(text, key.text) : scancode == key.scancode;
    }

    QString device;
    QString text;
    int scancode;
    bool is_joystick;
  };

  // One key of one item.
  struct Entry {
    ConfigItem* item;
    KnownKey key;
    KnownKey first_key;  // of a ComposableConfigItem; may be unset
    bool has_first_key;  // the item is a ComposableConfigItem
    bool is_chord;       // `first_key` is set
    int position;        // in the list
    int next;            // next entry in the bucket, further back in the list; -1 at the end
  };

  // An item with its own matching.
  struct Stranger {
    ConfigItem* item;
    const ComposableConfigItem* composable;  // the same item, or null
    int position;

    bool IsChord() const { return composable && IsKeySet(composable->first_key); }
  };

  static const QString& Shared(const QString& device) {
    for (const QString* known : {&keywords::kDeviceKeyboard, &keywords::kDeviceMouse}) {
      if (IsSameText(device, *known)) return *known;
    }
    return device;
  }
  static ConfigItem* ItemOf(const Entry* entry) { return entry ? entry->item : nullptr; }

  // Rare work stays out of the hot path: a key without an item is recognised by its empty bucket.
  Q_NEVER_INLINE void Make(const QList<ConfigItem*>& items) {
    Clear();
    items_ = items;  // shared: any later change of the list makes a copy
    for (int i = 0; i < items_.size(); ++i) Add(items_.at(i), i);
    Link();
  }
  Q_NEVER_INLINE ConfigItem* FindAloneAmongStrangers(const ConfigKey& key) const {
    const Entry* entry = FirstAloneEntry(key);
    for (const Stranger& stranger : strangers_) {
      if (entry && stranger.position > entry->position) break;
      if (stranger.item->IsKeyMatch(key) && !stranger.IsChord()) return stranger.item;
    }
    return ItemOf(entry);
  }
  Q_NEVER_INLINE bool IsMatchInList(const ConfigKey& configured, const ConfigKey& pressed) const {
    return std::any_of(items_.cbegin(), items_.cend(), [&](const ConfigItem* item) {
      if (!item || dynamic_cast<const TipConfigItem*>(item)) return false;
      const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
      const bool is_chord = composable && IsKeySet(composable->first_key);
      if (!is_chord && item->IsKeyMatch(configured)) return true;
      return composable && composable->IsChordMatch(configured, pressed);
    });
  }

  Q_NEVER_INLINE bool IsFoundInEntries(const ConfigKey& configured, const ConfigKey& pressed) const {
    return FirstAloneEntry(configured) != nullptr || FirstChordEntry(configured, pressed) != nullptr;
  }
  // Without chords, no first key of an item can match a key of a device.
  bool MayBeInChord(const ConfigKey& armed) const { return has_chords_ || armed.device.isEmpty(); }

  // False if no entry's key can be either of the two.
  bool MayMatch(const ConfigKey& configured, const ConfigKey& pressed) const {
    if (IsJoystickKey(configured) || IsJoystickKey(pressed)) return true;  // compared by name
    const int first = configured.scancode;
    const int second = pressed.scancode;
    return std::any_of(keys_.begin(), keys_.end(), [first, second](const ConfigKey* key) {
      return key->scancode == first || key->scancode == second;
    });
  }

  static std::size_t HashOf(int scancode) {
    constexpr unsigned kSpread = 0x9E3779B1U;  // 2^32 divided by the golden ratio: spreads adjacent codes
    const unsigned spread = static_cast<unsigned>(scancode) * kSpread;
    return spread ^ (spread >> 15U);
  }
  // If no entry has a joystick key, none is found whatever its hash.
  std::size_t HashOf(const ConfigKey& key) const {
    return has_joystick_keys_ && IsJoystickKey(key) ? qHash(key.text) : HashOf(key.scancode);
  }

  void Add(ConfigItem* item, int position) {
    if (!item || dynamic_cast<const TipConfigItem*>(item)) return;  // a label matches no key
    const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
    if (!IsContractClass(*item)) return strangers_.push_back({item, composable, position});
    const ConfigKey first_key = composable ? composable->first_key : ConfigKey();
    if (!first_key.device.isEmpty()) has_chords_ = true;
    for (const ConfigKey* key : KeysOf(*item)) {
      if (IsJoystickKey(*key)) has_joystick_keys_ = true;
      entries_.push_back(
          {item, KnownKey(*key), KnownKey(first_key), composable != nullptr, IsKeySet(first_key), position, kNone});
      keys_.push_back(key);
    }
  }

  // From the end, so that each bucket is in list order.
  void Link() {
    std::size_t size = 1;
    while (size < 4 * entries_.size()) size *= 2;
    buckets_.assign(size, kNone);
    last_bucket_ = size - 1;
    for (std::size_t i = entries_.size(); i-- > 0;) {
      const KnownKey& key = entries_[i].key;
      int& head = buckets_[(key.is_joystick ? qHash(key.text) : HashOf(key.scancode)) & last_bucket_];
      entries_[i].next = head;
      head = static_cast<int>(i);
    }
  }

  // The first entry in the bucket of `key`; kNone if it is empty.
  int HeadOf(const ConfigKey& key) const { return buckets_[HashOf(key) & last_bucket_]; }
  // Starts at entry `i`.
  template <typename Condition>
  Q_NEVER_INLINE const Entry* FirstOf(int i, const ConfigKey& key, Condition condition) const {
    while (i != kNone) {
      const Entry& entry = entries_[static_cast<std::size_t>(i)];
      if (entry.key.Is(key) && condition(entry)) return &entry;
      i = entry.next;
    }
    return nullptr;
  }

  const Entry* FirstAloneEntry(const ConfigKey& key) const {
    const int head = HeadOf(key);
    return head == kNone ? nullptr : FirstOf(head, key, [](const Entry& e) { return !e.is_chord; });
  }
  const Entry* FirstChordEntry(const ConfigKey& armed, const ConfigKey& pressed) const {
    if (!MayBeInChord(armed)) return nullptr;
    const int head = HeadOf(pressed);
    if (head == kNone) return nullptr;
    return FirstOf(head, pressed, [&armed](const Entry& e) { return e.has_first_key && e.first_key.Is(armed); });
  }

  static constexpr int kNone = -1;

  QList<ConfigItem*> items_;
  std::vector<Entry> entries_;
  std::vector<const ConfigKey*> keys_;  // of the entries, contiguous: MayMatch scans all of them
  std::vector<int> buckets_{kNone};     // index of the first entry, or kNone; a power of two in number
  std::size_t last_bucket_ = 0;
  std::vector<Stranger> strangers_;
  bool has_chords_ = false;
  bool has_joystick_keys_ = false;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_ITEM_INDEX_H_
