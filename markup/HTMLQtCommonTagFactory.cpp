#include "markup/HTMLQtCommonTagFactory.h"

namespace {

const std::string font_head = "<font";
const std::string color_attribute = "color";
const std::string face_attribute = "face";
[[maybe_unused]] const std::string size_attribute = "size";  // reserved for a font size

std::string font_tag(const std::string& attribute, const std::string& value) {
    return font_head + " " + attribute + "=" + value + ">";
}

const std::string greek_tag = font_tag(face_attribute, "symbol");

}  // namespace

HTMLQtCommonTagFactory::~HTMLQtCommonTagFactory() = default;

std::string HTMLQtCommonTagFactory::start_color(TextItem::ColorName color) const {
    return font_tag(color_attribute, color_texts_.convert(color));
}

std::string HTMLQtCommonTagFactory::start_greek() const { return greek_tag; }
