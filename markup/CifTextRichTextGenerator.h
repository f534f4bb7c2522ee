#pragma once

#include <array>
#include <string>
#include <vector>

#include "markup/NestingRichTextGenerator.h"

/// Writes text as CIF files hold it, with codes for what ASCII lacks; CifTextStyleFinder reads it
/// back as it was shown, with its styles but for colours. What has no code, or would be read as
/// another, stays in UTF-8; what is a code there and is meant as it stands becomes a reference,
/// "&#x7E;".
class CifTextRichTextGenerator : public NestingRichTextGenerator {
public:
    CifTextRichTextGenerator();
    ~CifTextRichTextGenerator() override;

    std::string mark_up_text(const RichTextData& data) const override;

protected:
    void write_text(std::string& result, std::string_view text) const override;
    void write_tag(std::string& result, const std::string& tag, TextItemStyle::Kind kind,
                   bool opens) const override;

private:
    /// A script that stands open.
    struct Script {
        std::size_t from;  // where its mark stands
        std::string tag;
        bool* is_open;  // that of its kind which tildes or carets enclose; null: tags do
    };

    std::size_t write_character(std::string& result, std::string_view text) const;

    mutable std::vector<Script> scripts_;  // the innermost last
    mutable std::array<bool, 2> script_is_open_{};
    mutable unsigned int bars_ = 0;
};
