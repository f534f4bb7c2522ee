#include "host/THandleCommon.h"

#include <stdexcept>

void THandleCommon::null_handle_error() { throw std::runtime_error("null handle error"); }
