#include "output/DocumentLayout.h"

#include <utility>

DocumentLayout::~DocumentLayout() = default;

std::string DocumentLayout::head(const std::string& /*title*/) { return {}; }
std::string DocumentLayout::foot() { return {}; }
std::string DocumentLayout::separator() const { return {}; }

std::string DocumentLayout::add(LaidOutPart part) {
    if (has_parts_) part.text.insert(0, separator());
    has_parts_ = true;
    return std::move(part.text);
}
