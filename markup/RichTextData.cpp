#include "markup/RichTextData.h"

RichTextData::RichTextData(const std::string& text, unsigned int line_length, const Styles& styles,
                           const Styles& invisible, const GreekStyles& greek,
                           const ReplacementTextStyles& replacement_text)
    : text_(text),
      line_length_(line_length),
      styles_(styles),
      invisible_(invisible),
      greek_(greek),
      replacement_text_(replacement_text) {}
