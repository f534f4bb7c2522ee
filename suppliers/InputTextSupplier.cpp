#include "suppliers/InputTextSupplier.h"

InputTextSupplier::~InputTextSupplier() = default;
