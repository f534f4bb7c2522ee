#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "output/ReportMedium.h"
#include "text/TextItem.h"

/// Writes the elements of reports in a medium. One thread at a time.
class ReportWriter {
public:
    using Table = ReportMedium::Table;
    using Around = ReportMedium::Around;

    /// Where mark-up shall stand.
    enum class Place { text, cell };

    explicit ReportWriter(const ReportMedium& medium);

    const ReportMedium& medium() const { return medium_; }
    /// The target of what stands in cells.
    const RichTextTarget& target_of_cells() const { return *targets_[1]; }

    /// The mark-up of an item.
    std::string mark_up(const TextItem& item, Place place = Place::text) const;
    /// That of names as files have them.
    std::string plain(const std::string& text, Place place = Place::text) const;
    /// That of words of ours, and what they quote, in Unicode: letters that not all fonts have, and
    /// raised and lowered ones, become styles.
    std::string words(const std::string& text, Place place = Place::text) const;

    /// Elements of mark-up.
    /// @{
    static std::string element(const Around& around, std::string_view mark_up);
    std::string title(std::string mark_up) const;
    std::string row(const std::string& label, const std::string& mark_up) const;
    /// Empty without rows.
    std::string list(const std::string& rows) const;
    static std::string table_row(const Table& table, const std::string& label, const Around& cell,
                                 const std::vector<std::string>& cells);
    /// @}

private:
    const ReportMedium& medium_;
    // By place.
    const RichTextTarget* targets_[2];
    THandle<RichTextGenerator> generators_[2];
};
