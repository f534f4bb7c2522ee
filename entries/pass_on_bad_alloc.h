#pragma once

#include <exception>
#include <new>

/// Within a handler of whatever a text fails with: lack of memory is no fault of the text, and goes
/// on to whoever asked.
inline void pass_on_bad_alloc(const std::exception& error) {
    if (dynamic_cast<const std::bad_alloc*>(&error)) throw;
}
