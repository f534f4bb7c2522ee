#include <algorithm>
#include <optional>
#include <string_view>

#include "checks/CheckedEntry.h"
#include "checks/check_temperatures.h"
#include "checks/in_decimals.h"
#include "checks/radiation.h"
#include "entries/cif_tags.h"
#include "entries/cif_text.h"

namespace {

using Tags = CheckedEntry::Tags;

constexpr std::string_view r_observed[] = {"_refine_ls_r_factor_gt", "_refine_ls_r_factor_obs"};
constexpr std::string_view r_all = "_refine_ls_r_factor_all";
constexpr std::string_view wr_factors[] = {"_refine_ls_wr_factor_ref", "_refine_ls_wr_factor_gt",
                                           "_refine_ls_wr_factor_obs", "_refine_ls_wr_factor_all"};
constexpr std::string_view r_int = "_diffrn_reflns_av_r_equivalents";
constexpr std::string_view goodness[] = {
    "_refine_ls_goodness_of_fit_ref", "_refine_ls_goodness_of_fit_gt",
    "_refine_ls_goodness_of_fit_obs", "_refine_ls_goodness_of_fit_all"};
constexpr std::string_view wavelengths[] = {"_diffrn_radiation_wavelength",
                                            "_diffrn_radiation_wavelength_value"};
constexpr std::string_view observed[] = {"_reflns_number_gt", "_reflns_number_observed"};

std::optional<UncertainValue> number_of(const CheckedEntry::Value& value) {
    return value ? read_number(value.text) : std::nullopt;
}

/// Two values that are to be in this order.
struct Ordered {
    std::string_view less, more;
    const char* code;
    const char* expected;  ///< Stands before the greater value, and the unit behind.
    const char* unit;
};

/// Whether both are numbers that are in the wrong order, beyond rounding; the finding is at `less`.
void check_order(CheckedEntry& entry, Tags less_tags, Tags more_tags, const char* code,
                 const char* expected, const char* unit) {
    const CheckedEntry::Value less = entry.first(less_tags);
    const std::optional<UncertainValue> left = number_of(less);
    if (!left) return;
    const CheckedEntry::Value more = entry.first(more_tags);
    const std::optional<UncertainValue> right = number_of(more);
    if (!right) return;
    const double rounding = std::max(half_a_unit(*left), half_a_unit(*right));
    const bool are_whole = left->decimals == 0 && right->decimals == 0;
    if (left->value - right->value <= (are_whole ? 0 : rounding)) return;
    entry.add(code, less, "no more than " + more.text + unit + ", " + expected);
}

void check_orders(CheckedEntry& entry) {
    constexpr Ordered rows[] = {
        {"_diffrn_reflns_theta_min", "_diffrn_reflns_theta_max", "theta-reversed", "the maximum",
         " degrees"},
        {"_cell_measurement_theta_min", "_cell_measurement_theta_max", "theta-reversed",
         "the maximum", " degrees"},
        {"_exptl_crystal_size_min", "_exptl_crystal_size_mid", "crystal-size-reversed",
         "the middle size", " mm"},
        {"_exptl_crystal_size_mid", "_exptl_crystal_size_max", "crystal-size-reversed",
         "the maximum", " mm"},
        {"_exptl_absorpt_correction_t_min", "_exptl_absorpt_correction_t_max",
         "transmission-reversed", "the maximum", ""},
    };
    for (const Ordered& row : rows) {
        check_order(entry, {&row.less, 1}, {&row.more, 1}, row.code, row.expected, row.unit);
    }
    constexpr std::string_view mid = "_exptl_crystal_size_mid", min = "_exptl_crystal_size_min",
                               max = "_exptl_crystal_size_max";
    if (!entry.first(mid)) {
        check_order(entry, {&min, 1}, {&max, 1}, "crystal-size-reversed", "the maximum", " mm");
    }
}

void check_reflections(CheckedEntry& entry) {
    constexpr std::string_view measured = "_diffrn_reflns_number";
    constexpr std::string_view independent = "_reflns_number_total";
    // Points of a powder's profile are counted otherwise.
    if (entry.entry().block.has_any("_pd_")) return;
    check_order(entry, {&independent, 1}, {&measured, 1}, "more-independent-than-measured",
                "the reflections that were measured", "");
    check_order(entry, observed, {&independent, 1}, "more-observed-than-independent",
                "the independent reflections", "");
}

void check_r_factors(CheckedEntry& entry) {
    for (const Tags tags : {Tags(r_observed), Tags(&r_all, 1), Tags(wr_factors), Tags(&r_int, 1)}) {
        for (const std::string_view tag : tags) {
            const CheckedEntry::Value value = entry.first(tag);
            const std::optional<UncertainValue> factor = number_of(value);
            if (!factor || (factor->value >= 0 && factor->value <= 1)) continue;
            const bool is_negative = factor->value < 0;
            entry.add(is_negative ? "r-factor-negative" : "r-factor-above-1", value,
                      is_negative ? "a number from 0 to 1" : "a number up to 1");
        }
    }
    check_order(entry, r_observed, {&r_all, 1}, "r-factors-reversed",
                "the R factor of all reflections", "");
    // Of amplitudes, weighted R factors may well be the lower ones.
    const std::string coefficient =
        in_lower_case(entry.first("_refine_ls_structure_factor_coef").text);
    if (coefficient == "fsqd") {
        check_order(entry, r_observed, wr_factors, "wr-below-r",
                    "the weighted R factor, which squares double", "");
    }
}

void check_goodness(CheckedEntry& entry) {
    constexpr double least = 0.3, most = 10;
    const CheckedEntry::Value value = entry.first(goodness);
    const std::optional<UncertainValue> fit = number_of(value);
    if (!fit || (fit->value >= least && fit->value <= most)) return;
    if (fit->value > most && entry.entry().block.has_any("_pd_")) return;
    entry.add("goodness-of-fit-unlikely", value, "a number near 1, from 0.3 to 10");
}

void check_theta(CheckedEntry& entry) {
    constexpr double right_angle = 90;
    for (const std::string_view tag : {"_diffrn_reflns_theta_max", "_cell_measurement_theta_max"}) {
        const CheckedEntry::Value value = entry.first(tag);
        const std::optional<UncertainValue> theta = number_of(value);
        if (!theta || theta->value <= right_angle) continue;
        entry.add("theta-above-90", value, "up to 90 degrees, half of the angle 2 theta");
    }
}

/// Some programs scale intensities with factors that are not those of transmission.
void check_transmission(CheckedEntry& entry) {
    const std::string type = in_lower_case(entry.first("_exptl_absorpt_correction_type").text);
    if (type.find("refdelf") != std::string::npos) return;
    for (const std::string_view tag :
         {"_exptl_absorpt_correction_t_min", "_exptl_absorpt_correction_t_max"}) {
        const CheckedEntry::Value value = entry.first(tag);
        const std::optional<UncertainValue> factor = number_of(value);
        if (!factor || (factor->value >= 0 && factor->value <= 1)) continue;
        entry.add("transmission-beyond-1", value, "a fraction of the intensity, from 0 to 1");
    }
}

/// Whether items name a source that may have any wavelength: none that is a tube.
bool has_other_source(const CheckedEntry& entry) {
    if (is_of_particles(entry)) return true;
    constexpr std::string_view tags[] = {"_diffrn_radiation_type", "_diffrn_radiation_source",
                                         "_diffrn_source", "_diffrn_source_type"};
    constexpr std::string_view usual[] = {"tube",      "anode",       "x-ray",      "xray",
                                          "generator", "micro-focus", "microfocus", "k\\a"};
    for (const std::string_view tag : tags) {
        const std::string text = in_lower_case(entry.first(tag).text);
        if (text.find("synchrotron") != std::string::npos) return true;
        const bool is_usual = std::any_of(std::begin(usual), std::end(usual), [&](auto word) {
            return text.find(word) != std::string::npos;
        });
        if (!text.empty() && !is_usual && !lines_of(text)) return true;
    }
    return false;
}

void check_wavelength(CheckedEntry& entry, const CheckedEntry::Value& value) {
    const std::optional<UncertainValue> wavelength = number_of(value);
    if (!wavelength) return;
    const XrayLines* const own = lines_with(*wavelength);
    const CheckedEntry::Value type = entry.first("_diffrn_radiation_type");
    const XrayLines* const named = lines_of(type.text);
    if (named && !contain(*named, *wavelength)) {
        entry.add("wavelength-of-other-radiation", value,
                  in_decimals(named->alpha1, 4) + " to " + in_decimals(named->alpha2, 4) +
                      " \xC3\x85, as " + type.text + " has");
    } else if (!named && !own && !has_other_source(entry)) {
        entry.add("unknown-wavelength", value,
                  "that of an X-ray tube in \xC3\x85, such as 0.71073 or 1.54184, or a source that "
                  "has others");
    }
}

void check_wavelengths(CheckedEntry& entry) {
    for (const std::string_view tag : wavelengths) {
        for (const CheckedEntry::Value& value : entry.all(tag)) check_wavelength(entry, value);
    }
}

}  // namespace

void check_measurement(CheckedEntry& entry) {
    check_temperatures(entry);
    check_wavelengths(entry);
    check_theta(entry);
    check_transmission(entry);
    check_orders(entry);
    check_reflections(entry);
    check_r_factors(entry);
    check_goodness(entry);
}
