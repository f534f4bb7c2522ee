#pragma once

#include <memory>
#include <span>
#include <string>

#include "checks/CheckFinding.h"

/// How findings of checks are laid out, one after the other; what stands around and between them
/// is written by the caller.
class CheckLayout {
public:
    CheckLayout() = default;
    CheckLayout(const CheckLayout&) = delete;
    CheckLayout& operator=(const CheckLayout&) = delete;
    virtual ~CheckLayout();

    /// `version` is that of the program.
    virtual std::string head(const std::string& /*version*/) const { return ""; }
    /// The file is that of its problem.
    virtual std::string finding(const CheckFinding& finding) const = 0;
    /// Between two findings.
    virtual std::string separator() const { return ""; }
    virtual std::string foot() const { return ""; }
};

/// What check writes.
struct CheckOutput {
    const char* name;
    const char* help;
    std::unique_ptr<CheckLayout> (*make)();
};
std::span<const CheckOutput> check_outputs();

/// The names of the levels: "note".
const char* name_of(Problem::Level level);

/// What is wrong, what stands there and what was expected, without the place.
std::string sentence_of(const CheckFinding& finding);

// A source each.

std::unique_ptr<CheckLayout> make_check_lines();
std::unique_ptr<CheckLayout> make_check_json();
/// Version 2.1.0 of the format, with all codes as its rules.
std::unique_ptr<CheckLayout> make_sarif();
