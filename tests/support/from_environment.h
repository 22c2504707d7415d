// Numbers from the environment that make a long test longer.
#ifndef TESTS_SUPPORT_FROM_ENVIRONMENT_H_
#define TESTS_SUPPORT_FROM_ENVIRONMENT_H_

#include <QtGlobal>

namespace taviinputmanager {

inline int FromEnvironment(const char* name, int otherwise) {
  return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
}

}  // namespace taviinputmanager

#endif  // TESTS_SUPPORT_FROM_ENVIRONMENT_H_
