// Finds the items of a keymap by their keys without walking the list.
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

// Answers as a walk over the list would, in its order. Items that are exactly of a class of the contract are found by
// their keys as these were when the index was made. An item of any other class has a matching of its own: it keeps its
// place in the list, and is asked at each search that comes that far. A Tip answers to no key, whatever its class.
//
// Items and list are not owned; the items must live for as long as they are searched. Main thread.
class ItemIndex {
 public:
  // Makes the index of `items`, unless it is that of the same, unchanged list already.
  void Follow(const QList<ConfigItem*>& items) {
    if (!items_.isSharedWith(items)) Make(items);
  }
  void Clear() { *this = ItemIndex(); }

  // The first item that answers to `key` alone, or null.
  ConfigItem* FindAlone(const ConfigKey& key) const {
    const Entry* entry = FirstAloneEntry(key);
    return strangers_.empty() ? ItemOf(entry) : FindAloneAmongStrangers(key, entry);
  }

  // The first item that answers to the chord of `armed` and then `pressed`, or null.
  ConfigItem* FindChord(const ConfigKey& armed, const ConfigKey& pressed) const {
    const Entry* entry = FirstChordEntry(armed, pressed);
    for (const Stranger& stranger : strangers_) {
      if (entry && stranger.position > entry->position) break;
      if (stranger.composable && stranger.composable->IsChordMatch(armed, pressed)) return stranger.item;
    }
    return ItemOf(entry);
  }

  // Whether an item answers to `configured` alone, or to the chord of `configured` and then `pressed`: whether one of
  // the searches would find it.
  bool IsFound(const ConfigKey& configured, const ConfigKey& pressed) const {
    if (!strangers_.empty()) return IsMatchInList(configured, pressed);  // each is asked both, in its place
    return FirstAloneEntry(configured) != nullptr || FirstChordEntry(configured, pressed) != nullptr;
  }

  // The same by the keys as they are now: looks at every item.
  bool IsMatch(const ConfigKey& configured, const ConfigKey& pressed) const {
    return (!strangers_.empty() || MayMatch(configured, pressed)) && IsMatchInList(configured, pressed);
  }

 private:
  // One key of one item.
  struct Entry {
    ConfigItem* item;
    const ConfigKey* key;
    const ConfigKey* first_key;  // of a ComposableConfigItem, set or not; else null
    int position;                // in the list
    bool is_chord;               // `first_key` is set
    int next;                    // of the same bucket, further back in the list; -1 at the end
  };

  // An item with a matching of its own.
  struct Stranger {
    ConfigItem* item;
    const ComposableConfigItem* composable;  // the same, or null
    int position;

    bool IsChord() const { return composable && IsKeySet(composable->first_key); }
  };

  static ConfigItem* ItemOf(const Entry* entry) { return entry ? entry->item : nullptr; }

  // What seldom happens stays out of the way of each event: a key of no item is told by its empty bucket.
  Q_NEVER_INLINE void Make(const QList<ConfigItem*>& items) {
    Clear();
    items_ = items;  // shared: from now on nobody changes the list without a copy
    for (int i = 0; i < items_.size(); ++i) Add(items_.at(i), i);
    Link();
  }
  Q_NEVER_INLINE ConfigItem* FindAloneAmongStrangers(const ConfigKey& key, const Entry* entry) const {
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

  // False where no entry's key can be either of the two.
  bool MayMatch(const ConfigKey& configured, const ConfigKey& pressed) const {
    if (IsJoystickKey(configured) || IsJoystickKey(pressed)) return true;  // goes by its name
    const int first = configured.scancode;
    const int second = pressed.scancode;
    return std::any_of(keys_.begin(), keys_.end(), [first, second](const ConfigKey* key) {
      return key->scancode == first || key->scancode == second;
    });
  }

  static unsigned HashOf(const ConfigKey& key) {
    if (IsJoystickKey(key)) return qHash(key.text);
    constexpr unsigned kSpread = 0x9E3779B1U;  // 2^32 over the golden ratio: codes side by side end up far apart
    const unsigned spread = static_cast<unsigned>(key.scancode) * kSpread;
    return spread ^ (spread >> 15U);
  }

  void Add(ConfigItem* item, int position) {
    if (!item || dynamic_cast<const TipConfigItem*>(item)) return;  // a label answers to no key
    const auto* composable = dynamic_cast<const ComposableConfigItem*>(item);
    if (!IsContractClass(*item)) return strangers_.push_back({item, composable, position});
    const ConfigKey* first_key = composable ? &composable->first_key : nullptr;
    const bool is_chord = first_key && IsKeySet(*first_key);
    if (first_key && !first_key->device.isEmpty()) has_chords_ = true;
    for (const ConfigKey* key : KeysOf(*item)) {
      entries_.push_back({item, key, first_key, position, is_chord, kNone});
      keys_.push_back(key);
    }
  }

  // From the back, so that each bucket is in the order of the list.
  void Link() {
    std::size_t size = 1;
    while (size < 2 * entries_.size()) size *= 2;
    buckets_.assign(size, kNone);
    for (std::size_t i = entries_.size(); i-- > 0;) {
      int& head = buckets_[HashOf(*entries_[i].key) & (size - 1)];
      entries_[i].next = head;
      head = static_cast<int>(i);
    }
  }

  // Of the bucket of `key`; kNone when no item has a key there.
  int HeadOf(const ConfigKey& key) const {
    return buckets_.empty() ? kNone : buckets_[HashOf(key) & (buckets_.size() - 1)];
  }
  // From entry `i` on.
  template <typename Condition>
  Q_NEVER_INLINE const Entry* FirstOf(int i, const ConfigKey& key, Condition condition) const {
    while (i != kNone) {
      const Entry& entry = entries_[static_cast<std::size_t>(i)];
      if (IsSameKey(*entry.key, key) && condition(entry)) return &entry;
      i = entry.next;
    }
    return nullptr;
  }

  const Entry* FirstAloneEntry(const ConfigKey& key) const {
    const int head = HeadOf(key);
    return head == kNone ? nullptr : FirstOf(head, key, [](const Entry& e) { return !e.is_chord; });
  }
  const Entry* FirstChordEntry(const ConfigKey& armed, const ConfigKey& pressed) const {
    if (!has_chords_ && !armed.device.isEmpty()) return nullptr;  // no first key is of any device
    const int head = HeadOf(pressed);
    if (head == kNone) return nullptr;
    return FirstOf(head, pressed, [&armed](const Entry& e) { return e.first_key && IsSameKey(*e.first_key, armed); });
  }

  static constexpr int kNone = -1;

  QList<ConfigItem*> items_;
  std::vector<Entry> entries_;
  std::vector<const ConfigKey*> keys_;  // of the entries, side by side: all are looked at for each key that passes
  std::vector<int> buckets_;            // index of the first entry, or kNone; as many as a power of two
  std::vector<Stranger> strangers_;
  bool has_chords_ = false;
};

}  // namespace tavikeymapmanager

#endif  // KEYMAP_ITEM_INDEX_H_
