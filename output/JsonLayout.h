#pragma once

#include <optional>
#include <string>

#include "markup/Html5RichTextGenerator.h"
#include "output/EntryLayout.h"
#include "output/TextPositions.h"

/// One array of entries: of each field its label, group, text with its codes and as it is shown,
/// mark-up in HTML5 and runs of uniform style, with their positions where they are asked for. Bytes
/// that are not UTF-8 become replacement characters; what would act where it is shown is escaped.
class JsonLayout : public EntryLayout {
public:
    explicit JsonLayout(std::optional<TextPositions> positions = {}) : positions_(positions) {}
    ~JsonLayout() override;

    std::string head(const std::string& title) override;
    std::string foot() override;
    std::string separator() const override;
    std::string entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;

private:
    std::optional<TextPositions> positions_;
    Html5RichTextGenerator generator_;
};
