// Only for the static programs, which are built without exceptions and must be small: where the standard library would
// throw, the program is ended. The library's own functions would add its exception code, a hundred kilobytes without
// any use here; the same is true for its instances of std::string's functions, so they are instantiated here.
#include <cstdlib>
#include <new>
#include <string>

template class std::basic_string<char>;

void* operator new(size_t size) {
  void* memory = std::malloc(size);
  if (!memory) std::abort();
  return memory;
}

void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, size_t /*size*/) noexcept { std::free(memory); }

// NOLINTBEGIN(readability-identifier-naming): the names are the library's
namespace std {

void __throw_bad_alloc() { std::abort(); }
void __throw_bad_array_new_length() { std::abort(); }
void __throw_bad_function_call() { std::abort(); }
void __throw_length_error(const char* /*what*/) { std::abort(); }
void __throw_logic_error(const char* /*what*/) { std::abort(); }
void __throw_out_of_range(const char* /*what*/) { std::abort(); }
void __throw_out_of_range_fmt(const char* /*what*/, ...) { std::abort(); }

}  // namespace std
// NOLINTEND(readability-identifier-naming)
