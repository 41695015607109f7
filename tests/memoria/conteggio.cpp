// The program's own operators of memory: the standard ones, counted. The forms that are not here (arrays, nothrow)
// end in these.

#include "conteggio.h"

#include <cstdlib>
#include <new>

// NOLINTBEGIN(cppcoreguidelines-no-malloc): the operators stand on it

namespace {

std::size_t contate = 0;

void* prendi(std::size_t byte) {
    ++contate;
    if (void* posto = std::malloc(byte == 0 ? 1 : byte)) {
        return posto;
    }
    throw std::bad_alloc();
}

void* prendiAllineati(std::size_t byte, std::size_t passo) {
    ++contate;
    if (void* posto = std::aligned_alloc(passo, (byte + passo - 1) / passo * passo)) {
        return posto;
    }
    throw std::bad_alloc();
}

}  // namespace

std::size_t kelvo::prove::allocazioni() {
    return contate;
}

void* operator new(std::size_t byte) {
    return prendi(byte);
}
void* operator new(std::size_t byte, std::align_val_t passo) {
    return prendiAllineati(byte, static_cast<std::size_t>(passo));
}
void operator delete(void* posto) noexcept {
    std::free(posto);
}
void operator delete(void* posto, std::size_t /*byte*/) noexcept {
    std::free(posto);
}
void operator delete(void* posto, std::align_val_t /*passo*/) noexcept {
    std::free(posto);
}
void operator delete(void* posto, std::size_t /*byte*/, std::align_val_t /*passo*/) noexcept {
    std::free(posto);
}

// NOLINTEND(cppcoreguidelines-no-malloc)
