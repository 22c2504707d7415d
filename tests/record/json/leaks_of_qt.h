// Memory that Qt's JSON parser never frees.
#ifndef TESTS_RECORD_JSON_LEAKS_OF_QT_H_
#define TESTS_RECORD_JSON_LEAKS_OF_QT_H_

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace taviinputmanager {

// Qt 5.15 leaks a list or an object if its key occurs twice. While this exists, the address sanitizer does not report
// what is allocated; other tests run the same code without such keys.
class LeaksOfQt {
 public:
  LeaksOfQt() = default;
  LeaksOfQt(const LeaksOfQt&) = delete;
  LeaksOfQt& operator=(const LeaksOfQt&) = delete;
  ~LeaksOfQt() {}  // NOLINT(modernize-use-equals-default): not trivial, or it would be an unused variable

#if defined(__SANITIZE_ADDRESS__)
 private:
  __lsan::ScopedDisabler disabler_;
#endif
};

}  // namespace taviinputmanager

#endif  // TESTS_RECORD_JSON_LEAKS_OF_QT_H_
