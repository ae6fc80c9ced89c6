// How many bytes a piece of code takes from the heap.
#include "AllocationMeter.h"

// The part of the sanitizers' public interface that is used here; GCC and clang have it, but not always the header.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void*, std::size_t),
                                                         void (*onFree)(const volatile void*));

namespace {

thread_local std::size_t allocated = 0;

void InstallOnce() {
    if constexpr (AllocationMeter::IsReal()) {
        static const int installed = __sanitizer_install_malloc_and_free_hooks(
            [](const volatile void*, std::size_t size) { allocated += size; }, [](const volatile void*) {});
        static_cast<void>(installed);
    }
}

} // namespace

AllocationMeter::AllocationMeter() {
    InstallOnce();
    m_before = allocated;
}

std::size_t AllocationMeter::Bytes() const { return allocated - m_before; }
