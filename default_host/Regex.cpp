#include "host/Regex.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

#include "default_host/internal/RegexMatch.h"

namespace {

std::string message(int error) {
    PCRE2_UCHAR text[256];
    pcre2_get_error_message(error, text, sizeof text);
    return reinterpret_cast<const char*>(text);
}

/// The byte that each match begins with, where there is one: a letter may stand for both cases.
std::optional<char> first_byte_of(const pcre2_code* code) {
    std::uint32_t kind = 0, byte = 0;
    pcre2_pattern_info(code, PCRE2_INFO_FIRSTCODETYPE, &kind);
    if (kind != 1) return std::nullopt;
    pcre2_pattern_info(code, PCRE2_INFO_FIRSTCODEUNIT, &byte);
    const std::uint32_t in_lower_case = byte | 0x20;
    if (in_lower_case >= 'a' && in_lower_case <= 'z') return std::nullopt;
    return static_cast<char>(byte);
}

}  // namespace

struct Regex::Program {
    struct Free {
        void operator()(pcre2_code* code) const { pcre2_code_free(code); }
    };
    std::unique_ptr<pcre2_code, Free> code;
    std::uint32_t numbers = 0;  // of the parenthesised groups and the whole match
    decltype(&pcre2_match) match = pcre2_match;
    std::optional<char> first_byte{};

    /// Few texts have the signs of mark-up: to look for the first takes much less than a search.
    bool may_match(const std::string& text, unsigned int position) const {
        return !first_byte || text.find(*first_byte, position) != std::string::npos;
    }
};

Regex::Regex(const std::string& pattern, unsigned int options)
    : program_(std::make_unique<Program>()) {
    if ((options & ~free_spacing) != 0) {
        throw std::invalid_argument("Regex: unknown option in " + std::to_string(options));
    }
    int error = 0;
    PCRE2_SIZE offset = 0;
    program_->code.reset(pcre2_compile(reinterpret_cast<PCRE2_SPTR>(pattern.data()), pattern.size(),
                                       (options & free_spacing) != 0 ? PCRE2_EXTENDED : 0, &error,
                                       &offset, nullptr));
    if (!program_->code) {
        throw std::invalid_argument("Regex: " + message(error) + " at position " +
                                    std::to_string(offset) + " of '" + pattern + "'");
    }
    pcre2_pattern_info(program_->code.get(), PCRE2_INFO_CAPTURECOUNT, &program_->numbers);
    ++program_->numbers;
    program_->first_byte = first_byte_of(program_->code.get());
    // Where the machine has no just-in-time compiler the interpreter gives the same matches.
    if (pcre2_jit_compile(program_->code.get(), PCRE2_JIT_COMPLETE) == 0) {
        program_->match = pcre2_jit_match;
    }
}

Regex::~Regex() = default;

bool Regex::search_from_position(const std::string& text, unsigned int position,
                                 RegexResults& results, unsigned int /*flags*/) const {
    if (results.match_) results.match_->size = 0;
    if (position > text.size() || !program_->may_match(text, position)) return false;
    if (!results.match_) results.match_ = std::make_unique<RegexResults::Match>();
    RegexResults::Match& match = *results.match_;
    match.prepare(program_->numbers);
    const int found =
        program_->match(program_->code.get(), reinterpret_cast<PCRE2_SPTR>(text.data()),
                        text.size(), position, 0, match.data.get(), nullptr);
    if (found == PCRE2_ERROR_NOMATCH) return false;
    if (found < 0) throw std::runtime_error("Regex: " + message(found));
    match.text = &text;
    match.size = program_->numbers;
    return true;
}
