#include "output/ComparisonLayout.h"

ComparisonLayout::~ComparisonLayout() = default;
