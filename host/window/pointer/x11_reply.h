#ifndef HOST_WINDOW_POINTER_X11_REPLY_H_
#define HOST_WINDOW_POINTER_X11_REPLY_H_

#include <cstdlib>
#include <memory>

namespace tavi {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

// An answer of an X server, which is the caller's; null for an error.
template <typename Reply>
using X11Reply = std::unique_ptr<Reply, FreeReply>;

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_X11_REPLY_H_
