#include "finders/CifFormulaStyleFinder.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "finders/internal/formula_parts.h"
#include "text/Position.h"
#include "text/internal/ascii.h"

namespace {

using namespace formula;

// Whose ions have several atoms: "I3-".
constexpr std::string_view chain_formers[] = {"Br", "Cl", "F", "I", "N"};

bool forms_chains(std::string_view symbol) {
    return std::find(std::begin(chain_formers), std::end(chain_formers), symbol) !=
           std::end(chain_formers);
}

/// Goes through a formula and appends the slices.
class FormulaReader {
public:
    FormulaReader(std::string_view text, std::vector<StringSlice>& subscripts,
                  std::vector<StringSlice>& superscripts)
        : text_(text), subscripts_(subscripts), superscripts_(superscripts) {}

    void read();

private:
    void begin_unit() {
        symbols_ = 0;
        has_blank_ = false;
    }
    void read_symbol();
    void read_count_of_symbol(std::string_view symbol);
    void read_bracket();
    void read_blanks();
    /// Covers what stands from here to `end`, and goes there.
    void lower(Position end) { cover(end, subscripts_); }
    void raise(Position end) { cover(end, superscripts_); }
    void cover(Position end, std::vector<StringSlice>& slices) {
        if (end > pos_) slices.emplace_back(to_position(pos_), to_position(end));
        pos_ = end;
    }

    std::string_view text_;
    std::vector<StringSlice>& subscripts_;
    std::vector<StringSlice>& superscripts_;
    Position pos_ = 0;
    Position symbols_ = 0;    // of this unit, until its charge; a bracket counts as two
    bool has_blank_ = false;  // in this unit
};

void FormulaReader::read() {
    while (pos_ < text_.size()) {
        const char c = text_[pos_];
        if (is_capital(c)) {
            read_symbol();
        } else if (is_closing(c)) {
            read_bracket();
        } else if (is_blank(c)) {
            read_blanks();
        } else if (is_ascii_digit(c)) {
            pos_ = end_of_run(text_, pos_, is_ascii_digit);
        } else if (is_small(c)) {
            pos_ = end_of_run(text_, pos_, is_small);
        } else {
            begin_unit();
            ++pos_;
        }
    }
}

void FormulaReader::read_symbol() {
    constexpr Position longest_symbol = 3;
    const Position begin = pos_;
    pos_ = end_of_run(text_, pos_ + 1, is_small);
    ++symbols_;
    if (pos_ - begin > longest_symbol) return;  // a word
    // No element's symbol ends so.
    const bool ends_with_variable = text_[pos_ - 1] == 'x' && end_of_count(text_, pos_) == pos_;
    if (ends_with_variable) {
        --pos_;
        lower(pos_ + 1);
    } else {
        read_count_of_symbol(text_.substr(begin, pos_ - begin));
    }
}

void FormulaReader::read_count_of_symbol(std::string_view symbol) {
    const Position count = end_of_count(text_, pos_);
    const Position sign = end_of_sign(text_, count);
    if (sign == count || !ends_unit(text_, sign)) {
        lower(count);
        return;
    }
    const bool is_whole = end_of_run(text_, pos_, is_ascii_digit) == count;
    const bool is_ion = is_whole && symbols_ == 1 && (text_[count] == '+' || !forms_chains(symbol));
    const bool is_unclear = is_whole && count - pos_ > 1 && !has_blank_;
    if (is_ion) {
        raise(sign);
    } else if (is_unclear) {
        pos_ = sign;
    } else {
        lower(count);
        raise(sign);
    }
    begin_unit();
}

void FormulaReader::read_bracket() {
    ++pos_;
    symbols_ = 2;
    // Digits before a sign belong to it, others may have a charge behind them: "]n2+".
    if (end_of_charge(text_, pos_) == pos_) lower(end_of_count(text_, pos_));
    const Position charge = end_of_charge(text_, pos_);
    if (charge > pos_) begin_unit();
    raise(charge);
}

void FormulaReader::read_blanks() {
    constexpr std::string_view ends_of_units = ",;)]}";
    pos_ = end_of_run(text_, pos_, is_blank);
    if (symbols_ == 0) return;
    has_blank_ = true;
    const Position charge = end_of_charge(text_, pos_);
    if (charge == pos_) return;
    // A sign between blanks may stand between two units.
    const Position next = end_of_run(text_, charge, is_blank);
    const bool is_last =
        next == text_.size() || ends_of_units.find(text_[next]) != ends_of_units.npos;
    if (!is_last && end_of_sign(text_, pos_) == charge) return;
    raise(charge);
    begin_unit();
}

}  // namespace

CifFormulaStyleFinder::~CifFormulaStyleFinder() = default;

void CifFormulaStyleFinder::subscripts(std::vector<StringSlice>& out) const {
    out.insert(out.end(), subscripts_.begin(), subscripts_.end());
}

void CifFormulaStyleFinder::superscripts(std::vector<StringSlice>& out) const {
    out.insert(out.end(), superscripts_.begin(), superscripts_.end());
}

void CifFormulaStyleFinder::calc_tag_positions() {
    subscripts_.clear();
    superscripts_.clear();
    FormulaReader(text(), subscripts_, superscripts_).read();
}
