#pragma once

#include <optional>
#include <string>

#include "markup/Html5RichTextGenerator.h"
#include "output/ComparisonLayout.h"
#include "output/EntryLayout.h"
#include "output/TextPositions.h"

/// One array of entries: of each field its label, group, text with its codes and as it is shown,
/// mark-up in HTML5 and runs of uniform style, with their positions where they are asked for. Bytes
/// that are not UTF-8 become replacement characters; what would act where it is shown is escaped.
class JsonLayout : public EntryLayout, public ComparisonLayout {
public:
    explicit JsonLayout(std::optional<TextPositions> positions = {}) : positions_(positions) {}
    ~JsonLayout() override;

    std::string head(const std::string& title) override;
    std::string foot() override;
    LaidOutPart entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;
    /// Of each field both sides as an entry has them, and what differs: kind, reason, verdict,
    /// places, numbers and a clause in English.
    LaidOutPart comparison(const Side& left, const Side& right, PairingReason reason,
                           const EntryComparison& compared) override;
    LaidOutPart only(const Side& entry, Verdict verdict) override;
    std::string summary(const ComparisonSummary& summary, std::span<const Field> compared) override;

protected:
    std::string separator() const override;

private:
    std::optional<TextPositions> positions_;
    Html5RichTextGenerator generator_;
};
