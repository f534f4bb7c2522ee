#include "output/EntryLayout.h"

EntryLayout::~EntryLayout() = default;

std::string EntryLayout::head(const std::string& /*title*/) { return {}; }
std::string EntryLayout::foot() { return {}; }
std::string EntryLayout::separator() const { return {}; }
