// What the code relies on of compiler and machine, as far as a compiler can tell.
#include <climits>
#include <cstddef>
#include <limits>

static_assert(CHAR_BIT == 8, "a character of a text is a byte");
static_assert(std::numeric_limits<unsigned int>::digits == 32, "positions have 32 bits");
static_assert(sizeof(std::size_t) >= sizeof(unsigned int), "positions are sizes");
static_assert(std::numeric_limits<unsigned long long>::digits == 64, "two positions make a key");
static_assert('0' == 0x30 && 'A' == 0x41 && 'Z' == 0x5A && 'a' == 0x61 && 'z' == 0x7A,
              "literals are ASCII");
static_assert(sizeof "\u03B1" == 3 && "\u03B1"[0] == '\xCE' && "\u03B1"[1] == '\xB1',
              "and UTF-8 beyond it");
static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits == 53,
              "numbers are IEEE doubles, with infinities and what is no number");
