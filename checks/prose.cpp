#include "checks/prose.h"

#include <algorithm>
#include <iterator>

namespace {

// Programs write these for themselves: instructions, other files, reports.
constexpr std::string_view of_programs[] = {"_shelx",  "_iucr_", "_oxford_", "_olex2",
                                            "_platon", "_vrf_",  "_jana_",   "_pd_"};

constexpr std::string_view names[] = {"_chemical_name_", "_publ_author_name", "_publ_section_title",
                                      "_journal_name_full"};

constexpr std::string_view running[] = {
    "_publ_section_",        "_publ_contact_author_name", "_publ_contact_author_address",
    "_publ_author_footnote", "_publ_author_address",      "_chemical_compound_source",
    "_chemical_properties_"};

constexpr std::string_view ends_of_running[] = {"_special_details", "_recrystallization_method",
                                                "_crystal_preparation"};

template <std::size_t size>
bool begins_with_any(std::string_view tag, const std::string_view (&fronts)[size]) {
    return std::any_of(std::begin(fronts), std::end(fronts),
                       [tag](std::string_view front) { return tag.starts_with(front); });
}

}  // namespace

Prose prose_of(std::string_view tag) {
    if (begins_with_any(tag, of_programs)) return Prose::none;
    if (begins_with_any(tag, names)) return Prose::name;
    const bool ends_so = std::any_of(std::begin(ends_of_running), std::end(ends_of_running),
                                     [tag](std::string_view end) { return tag.ends_with(end); });
    return ends_so || begins_with_any(tag, running) ? Prose::running : Prose::none;
}
