// Records which code of the library a process ran, in a file that survives the process however it ends.
//
// Every block of the library's code calls __sanitizer_cov_trace_pc (-fsanitize-coverage=trace-pc). If TAVI_TRACE_RUNS
// names a folder, the file PID in it gets a byte of 1 at the offset of each return address from the library's start;
// otherwise a call only checks a pointer.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <dlfcn.h>
#include <fcntl.h>
#include <link.h>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace {

std::uintptr_t base = 0;
std::uintptr_t size = 0;
unsigned char* runs = nullptr;  // `size` bytes, shared with the file

// Segments are mapped in sequence from `base` on.
int MeasureLibrary(dl_phdr_info* info, std::size_t, void*) {
  if (info->dlpi_addr != base) return 0;
  for (int i = 0; i < info->dlpi_phnum; ++i) {
    const auto& segment = info->dlpi_phdr[i];
    if (segment.p_type == PT_LOAD) size = std::max<std::uintptr_t>(size, segment.p_vaddr + segment.p_memsz);
  }
  return 1;
}

__attribute__((constructor)) void Start() {
  const char* folder = std::getenv("TAVI_TRACE_RUNS");
  Dl_info self;
  if (!folder || !dladdr(reinterpret_cast<void*>(&Start), &self)) return;
  base = reinterpret_cast<std::uintptr_t>(self.dli_fbase);
  dl_iterate_phdr(MeasureLibrary, nullptr);
  const std::string name = std::string(folder) + "/" + std::to_string(getpid());
  const int file = open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
  if (file < 0 || ftruncate(file, static_cast<off_t>(size)) != 0) return;
  void* bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
  close(file);
  if (bytes != MAP_FAILED) runs = static_cast<unsigned char*>(bytes);
}

}  // namespace

extern "C" void __sanitizer_cov_trace_pc() {
  if (!runs) return;
  runs[reinterpret_cast<std::uintptr_t>(__builtin_return_address(0)) - base] = 1;
}
