#pragma once

#include <string>

#include "markup/Html5RichTextGenerator.h"
#include "output/EntryLayout.h"

/// One array of entries: of each field its label, group, text, mark-up in HTML5 and runs of uniform
/// style. Bytes that are not UTF-8 become replacement characters; what would act where it is shown
/// is escaped.
class JsonLayout : public EntryLayout {
public:
    ~JsonLayout() override;

    std::string head(const std::string& title) override;
    std::string foot() override;
    std::string separator() const override;
    std::string entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;

private:
    Html5RichTextGenerator generator_;
};
