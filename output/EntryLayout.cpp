#include "output/EntryLayout.h"

EntryLayout::~EntryLayout() = default;
