#pragma once

#include <string>

/// The tags that enclose the parts of a literature reference in its field text: journal, volume,
/// year and page. The texts of the parts are not escaped.
class CombinedPublicationTagSupplier {
public:
    /// The tag before, and behind, that part.
    /// @{
    std::string begin_jnl() const;
    std::string end_jnl() const;
    std::string begin_vol() const;
    std::string end_vol() const;
    std::string begin_year() const;
    std::string end_year() const;
    std::string begin_page() const;
    std::string end_page() const;
    /// @}
};
