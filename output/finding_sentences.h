#pragma once

#include <string>
#include <vector>

#include "comparison/ComparedText.h"
#include "comparison/Finding.h"

/// Says in plain English in what two texts of a field differ.
class FindingSentences {
public:
    /// Refers to both.
    FindingSentences(const ComparedText& left, const ComparedText& right)
        : left_(left), right_(right) {}

    /// One clause: "H 40 against 39". What it quotes is text as it is shown.
    std::string clause(const Finding& finding) const;
    /// The clauses of the first few findings, those that count before those that do not, and how
    /// many there are besides.
    std::string reasons(const std::vector<Finding>& findings) const;

private:
    const ComparedText &left_, &right_;
};
