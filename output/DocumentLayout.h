#pragma once

#include <string>

#include "output/LaidOutPart.h"

/// How a document is written, part by part.
class DocumentLayout {
public:
    DocumentLayout() = default;
    DocumentLayout(const DocumentLayout&) = delete;
    DocumentLayout& operator=(const DocumentLayout&) = delete;
    virtual ~DocumentLayout();

    /// Each returns what can be written by now; together, in that order, they are the document.
    /// Parts may have been laid out by others of the same kind.
    /// @{
    virtual std::string head(const std::string& title);
    virtual std::string add(LaidOutPart part);
    virtual std::string foot();
    /// @}

protected:
    /// What stands between two parts.
    virtual std::string separator() const;

private:
    bool has_parts_ = false;
};
