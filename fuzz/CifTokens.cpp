#include "fuzz/CifTokens.h"

#include <algorithm>
#include <stdexcept>
#include <string>

CifTokens::Kind CifTokens::next(std::string_view& raw) {
    pass_blanks();
    if (at_ == bytes_.size()) return end;
    const std::size_t from = at_;
    const Kind kind = pass_token("");
    raw = bytes_.substr(from, at_ - from);
    const bool is_closed = at_ == bytes_.size() || is_cif_blank(bytes_[at_]) || bytes_[at_] == '#';
    if (kind == value && !is_closed) {
        throw std::runtime_error("no blank behind " + std::string(raw));
    }
    if (kind == comment && raw.back() == '\r') raw.remove_suffix(1);
    return kind;
}

void CifTokens::pass_blanks() {
    while (at_ < bytes_.size() && is_cif_blank(bytes_[at_])) ++at_;
}

void CifTokens::pass(std::string_view closing, std::size_t opening_size) {
    at_ = bytes_.find(closing, at_ + opening_size);
    if (at_ == bytes_.npos) throw std::runtime_error("open at the end of the file");
    at_ += closing.size();
}

void CifTokens::pass_quoted(std::string_view quote) {
    const std::string three = std::string(quote) + std::string(quote) + std::string(quote);
    if (is_version_2_ && is_at(three)) return pass(three, 3);
    const std::size_t from = at_;
    do {
        pass(quote, at_ == from ? 1 : 0);
    } while (!is_version_2_ && at_ < bytes_.size() && !is_cif_blank(bytes_[at_]) &&
             bytes_[at_] != '#');
    if (bytes_.substr(from, at_ - from).find('\n') != bytes_.npos) {
        throw std::runtime_error("open at the end of the line");
    }
}

void CifTokens::pass_brackets() {
    for (std::size_t depth = 0;;) {
        pass_blanks();
        if (at_ == bytes_.size()) throw std::runtime_error("open at the end of the file");
        const char c = bytes_[at_];
        if (c == '[' || c == '{') ++depth;
        if (c == ']' || c == '}') --depth;
        if (std::string_view("[]{}:").find(c) == std::string_view::npos) {
            pass_token("[]{}");
        } else {
            ++at_;
        }
        if (depth == 0) return;
    }
}

CifTokens::Kind CifTokens::pass_token(std::string_view separators) {
    const char c = bytes_[at_];
    if (c == '#') {
        at_ = std::min(bytes_.find('\n', at_), bytes_.size());
        return comment;
    }
    if (c == ';' && (at_ == 0 || bytes_[at_ - 1] == '\n')) {
        pass("\n;", 1);
    } else if (c == '\'' || c == '"') {
        pass_quoted(bytes_.substr(at_, 1));
    } else if (is_version_2_ && separators.empty() && (c == '[' || c == '{')) {
        pass_brackets();
    } else {
        while (at_ < bytes_.size() && !is_cif_blank(bytes_[at_]) &&
               separators.find(bytes_[at_]) == separators.npos) {
            ++at_;
        }
        return word;
    }
    return value;
}
