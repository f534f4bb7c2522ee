#include "output/html_text.h"

#include "entries/cif_text.h"
#include "markup/Html5RichTextGenerator.h"

namespace {

bool is_alphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

}  // namespace

std::string escaped(std::string_view text) {
    std::string result;
    Html5RichTextGenerator::escape(result, text);
    return result;
}

std::string in_quotes(std::string_view json) {
    std::string result;
    for (const char c : json) {
        if (c == '&') {
            result += "&amp;";
        } else if (c == '\'') {
            result += "&#39;";
        } else if (c == '<') {
            result += "&lt;";
        } else {
            result += c;
        }
    }
    return result;
}

std::string isolated(std::string_view text) { return "<bdi>" + escaped(text) + "</bdi>"; }

std::string without_folders(const std::string& file) {
    return file.substr(file.find_last_of('/') + 1);
}

std::string slug_of_label(std::string_view label) { return slug(in_lower_case(label), "field"); }

std::string slug(std::string_view text, const char* otherwise) {
    std::string result;
    for (const char c : text) {
        if (is_alphanumeric(c)) {
            result += c;
        } else if (!result.empty() && result.back() != '-') {
            result += '-';
        }
    }
    while (result.ends_with('-')) result.pop_back();
    return result.empty() ? otherwise : result;
}

std::string link_of_doi(std::string_view text) {
    if (!text.starts_with("10.") || text.find('/') == std::string_view::npos) return {};
    constexpr std::string_view kept = "-._~/:;()", digits = "0123456789ABCDEF";
    std::string link = "https://doi.org/";
    for (const char c : text) {
        if (is_alphanumeric(c) || kept.find(c) != std::string_view::npos) {
            link += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            link.append(1, '%').append(1, digits[byte / 16]).append(1, digits[byte % 16]);
        }
    }
    return link;
}
