// Part of every test program: the C library speaks the language of the system, as it does in the desktop program.

#include <clocale>

namespace {

[[maybe_unused]] const char* const lingua = std::setlocale(LC_ALL, "");

}  // namespace
