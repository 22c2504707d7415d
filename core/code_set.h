// A set of guest key codes in ascending order.
#ifndef CORE_CODE_SET_H_
#define CORE_CODE_SET_H_

#include <algorithm>
#include <vector>

namespace taviinputmanager {

// A sorted vector: only a handful of keys are held at once, and after the first few, a key press allocates nothing.
class CodeSet {
 public:
  using const_iterator = std::vector<int>::const_iterator;

  void Add(int code) {
    const auto at = std::lower_bound(codes_.begin(), codes_.end(), code);
    if (at == codes_.end() || *at != code) codes_.insert(at, code);
  }
  void Remove(int code) {
    const auto at = std::lower_bound(codes_.begin(), codes_.end(), code);
    if (at != codes_.end() && *at == code) codes_.erase(at);
  }
  bool Contains(int code) const { return std::binary_search(codes_.begin(), codes_.end(), code); }
  bool IsEmpty() const { return codes_.empty(); }
  void Clear() { codes_.clear(); }

  const_iterator begin() const { return codes_.begin(); }
  const_iterator end() const { return codes_.end(); }

 private:
  std::vector<int> codes_;
};

}  // namespace taviinputmanager

#endif  // CORE_CODE_SET_H_
