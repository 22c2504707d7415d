// Input: bytes as the actions of a host, through all exports. Property: everything that is pressed in the guest is
// released.
#include "fuzz/event_player.h"
#include "fuzz/session.h"

// Codes of four bytes each (event_code.h); the rest is ignored.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace taviinputmanager::fuzz;
  constexpr size_t kMaxCodes = 256;
  Session& session = Session::Get();
  {
    EventPlayer player;
    for (size_t i = 0; i + 4 <= size && i < 4 * kMaxCodes; i += 4) {
      player.Play({data[i], data[i + 1], data[i + 2], data[i + 3]});
    }
    session.CheckThatNothingStaysDown(player.GetDisplay());
  }
  session.Finish();
  return 0;
}
