#pragma once

#include <string>

#include "output/CopiedForms.h"
#include "output/EntryCards.h"
#include "output/EntryLayout.h"
#include "output/PageDocument.h"
#include "output/PageRichTextGenerator.h"

/// A page of entries, each with a head and cards by subject, and an index of them.
class EntryPage : public EntryLayout, public PageDocument {
public:
    EntryPage();
    ~EntryPage() override;

    LaidOutPart entry(const std::string& file, const std::string& block,
                      const std::vector<EntryField>& fields) override;

protected:
    std::string data() const override;

private:
    class Writer;

    CopiedForms copied_;
    mutable PageRichTextGenerator generator_;
};
