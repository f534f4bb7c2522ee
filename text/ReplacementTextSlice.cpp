#include "text/ReplacementTextSlice.h"

ReplacementTextSlice::~ReplacementTextSlice() = default;
