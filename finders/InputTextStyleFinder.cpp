#include "finders/InputTextStyleFinder.h"

#include "text/Position.h"

InputTextStyleFinder::~InputTextStyleFinder() = default;

void InputTextStyleFinder::bold(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::italic(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::subscripts(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::superscripts(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::overstrike(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::invisible(std::vector<StringSlice>& /*out*/) const {}
void InputTextStyleFinder::replacement_text(std::vector<ReplacementTextSlice>& /*out*/) const {}
void InputTextStyleFinder::greek(std::vector<GreekSlice>& /*out*/) const {}
void InputTextStyleFinder::color(std::vector<ColorSlice>& /*out*/) const {}
void InputTextStyleFinder::calc_tag_positions() {}

void InputTextStyleFinder::set_text(const std::string& text) {
    check_length(text);  // throws where positions would not do
    text_ = text;
    calc_tag_positions();
}
