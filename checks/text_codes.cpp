#include "checks/CheckCode.h"

std::span<const CheckCode> text_codes() { return {}; }
