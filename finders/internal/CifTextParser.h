#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "finders/CifTextStyleFinder.h"
#include "markup/internal/cif_codes.h"

/// Goes once through a text of a CIF file. What stands open is kept until its partner comes, or
/// never does.
class CifTextParser {
public:
    using Found = CifTextStyleFinder::Found;

    /// Adds what it finds to `found`. Both live on.
    CifTextParser(std::string_view text, Found& found) : text_(text), found_(found) {}

    void parse();

private:
    using Doubt = CifTextStyleFinder::Doubt;

    struct Open {
        const CifMark* mark;
        std::size_t at;
    };

    void take_special(std::string_view rest);
    void take_backslash(std::string_view rest);
    void take_code(const CifCode& code);
    void take_accents(std::string_view rest, std::size_t accents);
    void take_sign(std::string_view rest);
    void take_reference(const CifEntity& reference);
    void take_mark(const CifMark* mark);
    void close(const CifMark& mark);
    void drop_innermost();
    std::vector<StringSlice>& styles_of(CifMark::Kind kind);
    void hide(std::size_t size);
    void show(char32_t character, std::size_t size);
    void replace(const std::string& shown, std::size_t size);
    void doubt(std::size_t at, std::size_t size, Doubt::Kind kind);
    void merge_doubts();

    std::string_view text_;
    Found& found_;
    std::size_t at_ = 0;
    bool folded_ = false;
    std::vector<Open> open_;  // the innermost last
    std::array<std::size_t, CifMark::kinds> open_count_{};
};
