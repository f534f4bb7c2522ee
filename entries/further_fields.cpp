#include "entries/further_fields.h"

#include <locale>
#include <sstream>
#include <utility>

#include "entries/cif_text.h"
#include "entries/quantities.h"

namespace {

constexpr std::string_view title[] = {"_publ_section_title"};
constexpr std::string_view doi[] = {"_journal_paper_doi", "_journal_article_doi"};
constexpr std::string_view moiety[] = {"_chemical_formula_moiety"};
constexpr std::string_view weight[] = {"_chemical_formula_weight"};
constexpr std::string_view density[] = {"_exptl_crystal_density_meas"};
constexpr std::string_view f_000[] = {"_exptl_crystal_f_000"};
constexpr std::string_view absorption[] = {"_exptl_absorpt_coefficient_mu"};
constexpr std::string_view goodness[] = {
    "_refine_ls_goodness_of_fit_ref", "_refine_ls_goodness_of_fit_gt",
    "_refine_ls_goodness_of_fit_obs", "_refine_ls_goodness_of_fit_all"};
constexpr std::string_view wavelengths[] = {"_diffrn_radiation_wavelength",
                                            "_diffrn_radiation_wavelength_value"};
constexpr std::string_view correction[] = {"_exptl_absorpt_correction_type"};
constexpr std::string_view transmission[] = {"_exptl_absorpt_correction_t_min",
                                             "_exptl_absorpt_correction_t_max"};
constexpr std::string_view sizes[] = {"_exptl_crystal_size_max", "_exptl_crystal_size_mid",
                                      "_exptl_crystal_size_min"};
constexpr std::string_view radius[] = {"_exptl_crystal_size_rad"};
constexpr std::string_view theta[] = {"_diffrn_reflns_theta_min", "_diffrn_reflns_theta_max"};
constexpr std::string_view measured[] = {"_diffrn_reflns_number"};
constexpr std::string_view independent[] = {"_reflns_number_total"};
constexpr std::string_view observed[] = {"_reflns_number_gt", "_reflns_number_observed"};
constexpr std::string_view r_int[] = {"_diffrn_reflns_av_r_equivalents"};
constexpr std::string_view wr_factor[] = {"_refine_ls_wr_factor_ref", "_refine_ls_wr_factor_gt",
                                          "_refine_ls_wr_factor_obs", "_refine_ls_wr_factor_all"};

// Digits among them would be numbers to searches.
constexpr char angstrom[] = "\xC3\x85";
constexpr char per_millimetre[] = "mm\xE2\x81\xBB\xC2\xB9";
constexpr char grams_per_volume[] = "g/cm\xC2\xB3";
constexpr char degrees[] = "\xC2\xB0";
constexpr char times[] = " \xC3\x97 ";

/// With its codes, of which the doubts are noted.
std::string title_as_written(BlockReader& block) {
    const BlockReader::Value value = block.first_value(title);
    if (!value) return "";
    std::string written = one_line(value.text, true);
    if (CodedText::may_hold_codes(written)) block.note_doubts(value, CodedText(written));
    return written;
}

template <const auto& tags>
std::string first_text(BlockReader& block) {
    return block.first_decoded_text(tags);
}

template <const auto& tags, const auto& unit>
std::string with_its_unit(BlockReader& block) {
    return with_unit(block.first_decoded_text(tags), unit);
}

/// Adds a part of a list.
void add_part(std::string& list, std::string_view separator, std::string_view part) {
    if (!list.empty() && !part.empty()) list += separator;
    list += part;
}

/// "2.5 to 27.5", or what there is of it.
std::string range(BlockReader& block, const std::string_view (&ends)[2]) {
    const std::string from = block.first_decoded_text(just(ends[0]));
    const std::string to = block.first_decoded_text(just(ends[1]));
    if (from == to || to.empty()) return from.empty() ? "" : (to.empty() ? "from " : "") + from;
    return from.empty() ? "up to " + to : from + " to " + to;
}

/// What many files say in place of a number, such as "not measured", says nothing.
std::string measured_density(BlockReader& block) {
    const std::string text = block.first_decoded_text(density);
    const bool has_number = text.find_first_of("0123456789") != std::string::npos;
    return has_number ? with_unit(text, grams_per_volume) : "";
}

std::string all_wavelengths(BlockReader& block) {
    std::string list;
    for (const std::string_view tag : wavelengths) {
        if (!list.empty()) break;
        for (const std::string& text : block.texts(tag)) add_part(list, ", ", one_line(text));
    }
    if (!list.empty()) list.append(" ").append(angstrom);
    return list;
}

std::string absorption_correction(BlockReader& block) {
    std::string text = block.first_decoded_text(correction);
    const std::string factors = range(block, transmission);
    if (!factors.empty()) add_part(text, ", ", "T " + factors);
    return text;
}

std::string crystal_size(BlockReader& block) {
    std::string text;
    for (const std::string_view size : sizes)
        add_part(text, times, block.first_decoded_text(just(size)));
    const std::string sphere = block.first_decoded_text(radius);
    if (text.empty() && !sphere.empty()) text = "radius " + sphere;
    return text.empty() ? "" : text + " mm";
}

std::string theta_range(BlockReader& block) {
    const std::string text = range(block, theta);
    return text.empty() ? "" : text + degrees;
}

std::string per_cent(BlockReader& block, Tags tags) {
    const std::optional<double> fraction = read_per_cent(block, tags);
    if (!fraction) return "";
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << *fraction;
    return text.str();
}

std::string weighted_r_factor(BlockReader& block) { return per_cent(block, wr_factor); }

std::string reflections(BlockReader& block) {
    const std::pair<Tags, const char*> counts[] = {
        {measured, " measured"}, {independent, " independent"}, {observed, " observed"}};
    std::string text;
    for (const auto& [tags, what] : counts) {
        const std::string count = block.first_decoded_text(tags);
        if (!count.empty()) add_part(text, ", ", count + what);
    }
    const std::string internal = per_cent(block, r_int);
    if (!internal.empty()) add_part(text, ", ", "R(int) " + internal + " %");
    return text;
}

constexpr FurtherField rows[] = {
    {"Title", "cif-text", "substring", "text", title_as_written},
    {"DOI", "plain", "exact", "exact", first_text<doi>},
    {"Moiety Formula", "cif-formula", "substring", "formula", first_text<moiety>},
    {"Formula Weight", "plain", "numeric", "numbers", first_text<weight>},
    {"Measured Density", "plain", "numeric", "numbers", measured_density},
    {"F(000)", "plain", "numeric", "numbers", first_text<f_000>},
    {"Crystal Size", "plain", "numeric", "numbers", crystal_size},
    {"Wavelength", "plain", "numeric", "numbers", all_wavelengths},
    {"Absorption Coefficient", "plain", "numeric", "numbers",
     with_its_unit<absorption, per_millimetre>},
    {"Absorption Correction", "plain", "substring", "text", absorption_correction},
    {"Theta Range", "plain", "numeric", "numbers", theta_range},
    {"Reflections", "plain", "numeric", "numbers", reflections},
    {"wR-Factor (%)", "plain", "numeric", "numbers", weighted_r_factor},
    {"Goodness Of Fit", "plain", "numeric", "numbers", first_text<goodness>},
};

}  // namespace

std::span<const FurtherField> further_fields() { return rows; }

void read_further_fields(BlockReader& block) {
    for (const FurtherField& row : rows) {
        std::string text = row.text_of(block);
        if (!text.empty()) block.add_text({row.label, row.source, std::move(text)});
    }
}
