#pragma once

#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "tasks/Term.h"

/// A kind of terms, which users write as "NAME:VALUE".
struct TermKind {
    const char* name;
    const char* value;  ///< How what stands behind the colon is written: "FROM-TO".
    const char* help;
    std::span<const char* const> labels;  ///< Of the fields that it looks into.
    /// The term, or null where the value is not written so.
    std::unique_ptr<Term> (*make)(const TermKind& kind, const std::string& written,
                                  const std::string& value, const TermSettings& settings);
};

std::span<const TermKind> term_kinds();

/// What a user wrote is no term; what() says why.
class BadTerm : public std::invalid_argument {
    using invalid_argument::invalid_argument;
};

/// The term that a user writes so: of a kind where its name and a colon stand before it, else a
/// plain one. Throws BadTerm.
std::unique_ptr<Term> make_term(const std::string& written, const TermSettings& settings);

/// The kind that is most likely meant by what stands before the colon of a plain term; empty where
/// none is near.
std::string_view nearest_term_kind(std::string_view written);
