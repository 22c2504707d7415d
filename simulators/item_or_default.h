// The item that a run is made from.
#ifndef SIMULATORS_ITEM_OR_DEFAULT_H_
#define SIMULATORS_ITEM_OR_DEFAULT_H_

namespace taviinputmanager {

// What a run copies, so that it outlives its keymap; a run without an item is one of a default-constructed item.
template <typename Item>
const Item& ItemOrDefault(const Item* item) {
  static const Item default_item;
  return item ? *item : default_item;
}

}  // namespace taviinputmanager

#endif  // SIMULATORS_ITEM_OR_DEFAULT_H_
