// The item that a run copies.
#ifndef SIMULATORS_ITEM_OR_DEFAULT_H_
#define SIMULATORS_ITEM_OR_DEFAULT_H_

namespace taviinputmanager {

// A run copies its item, so that it can outlive the keymap; without an item, it uses a default-constructed one.
template <typename Item>
const Item& ItemOrDefault(const Item* item) {
  static const Item default_item;
  return item ? *item : default_item;
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_ITEM_OR_DEFAULT_H_
