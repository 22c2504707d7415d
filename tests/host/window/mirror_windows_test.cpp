// Lines between instances, over named pipes.
#include <windows.h>
#include <aclapi.h>
#include <gtest/gtest.h>

#include <QLocalSocket>

#include "host/mirror/mirror_address.h"
#include "host/mirror/mirror_server.h"
#include "host/session/live_host.h"
#include "tests/host/window/mirror_story.h"

namespace tavi {
namespace {

// The rights to a pipe.
class PipeRights {
 public:
  explicit PipeRights(const QLocalSocket& end) {
    EXPECT_EQ(GetSecurityInfo(reinterpret_cast<HANDLE>(end.socketDescriptor()), SE_KERNEL_OBJECT,
                              OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &owner_, nullptr, &list_, nullptr,
                              &descriptor_),
              DWORD{ERROR_SUCCESS});
  }
  ~PipeRights() { LocalFree(descriptor_); }
  PipeRights(const PipeRights&) = delete;
  PipeRights& operator=(const PipeRights&) = delete;

  // A pipe without a list admits everybody.
  int Count() const { return list_ ? list_->AceCount : -1; }
  bool IsForTheOwner(int index) const {
    void* entry = nullptr;
    if (!GetAce(list_, static_cast<DWORD>(index), &entry)) return false;
    auto* allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
    return allowed->Header.AceType == ACCESS_ALLOWED_ACE_TYPE && EqualSid(&allowed->SidStart, owner_);
  }

 private:
  PSECURITY_DESCRIPTOR descriptor_ = nullptr;
  PSID owner_ = nullptr;  // both are in the descriptor
  PACL list_ = nullptr;
};

// Only one user takes part in these tests: another one would need a password.
TEST_F(Mirror, APipeAdmitsItsOwnerAlone) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  other.connectToServer(MirrorAddressOf("server"));
  ASSERT_TRUE(other.waitForConnected());
  const PipeRights rights(other);
  EXPECT_EQ(rights.Count(), 1);
  EXPECT_TRUE(rights.IsForTheOwner(0));
}

TEST_F(Mirror, AProgramOfThisUserIsKnown) {
  MirrorServer server(LiveHost::kDisplay);
  ASSERT_EQ(server.Listen("server"), QString());
  QLocalSocket other;
  EXPECT_FALSE(IsOfThisUser(other));  // it has no other end
  other.connectToServer(MirrorAddressOf("server"));
  ASSERT_TRUE(other.waitForConnected());
  EXPECT_TRUE(IsOfThisUser(other));
}

// Pipes have no files: their names are apart by the name of the user.
TEST_F(Mirror, NamesOfUsersAreApart) {
  const QString mine = MirrorAddressOf("server");
  qputenv("USERNAME", "somebody");
  EXPECT_NE(MirrorAddressOf("server"), mine);
}

}  // namespace
}  // namespace tavi
