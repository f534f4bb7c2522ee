#pragma once

#include <string>

#include "output/EntryCards.h"
#include "output/EntryLayout.h"
#include "output/ReportWriter.h"

/// A section for each entry, with what a page of entries shows of it, in a medium.
class EntryReport : public EntryLayout {
public:
    explicit EntryReport(const ReportMedium& medium);
    ~EntryReport() override;

    LaidOutPart entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;

private:
    std::string section(const EntryCards& cards, const std::string& file,
                        const std::string& block) const;
    std::string cell(const EntryCards& cards) const;
    std::string row(const EntryCards::Row& row) const;

    ReportWriter writer_;
};
