// The application object of a test, which has no arguments.
#ifndef TESTS_SUPPORT_APPLICATION_OBJECT_H_
#define TESTS_SUPPORT_APPLICATION_OBJECT_H_

namespace tavi {

// `Application` keeps references to the arguments, so they live as long as it does.
template <typename Application>
class ApplicationObject {
 private:
  int argument_count_ = 0;
  char* arguments_[1] = {nullptr};
  Application application_{argument_count_, arguments_};
};

}  // namespace tavi

#endif  // TESTS_SUPPORT_APPLICATION_OBJECT_H_
