#ifndef HOST_WINDOW_POINTER_X11_REPLY_H_
#define HOST_WINDOW_POINTER_X11_REPLY_H_

#include <cstdlib>
#include <memory>

namespace tavi {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

// A reply of an X server, freed with its pointer; null after an error.
template <typename Reply>
using X11Reply = std::unique_ptr<Reply, FreeReply>;

}  // namespace tavi

#endif  // HOST_WINDOW_POINTER_X11_REPLY_H_
