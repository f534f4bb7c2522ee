#pragma once

#include <map>
#include <string>
#include <vector>

#include "output/DocumentLayout.h"
#include "output/page_texts.h"

/// A page in HTML5 that needs nothing beside it and runs no script but its own. Its index, where it
/// has one, stands before all parts: the page is written when the last is known.
class PageDocument : public virtual DocumentLayout {
public:
    explicit PageDocument(const PageText& script);
    ~PageDocument() override;

    std::string head(const std::string& title) override;
    /// Gives the part an anchor of its own, with which its ids and the links to them begin.
    std::string add(LaidOutPart part) override;
    std::string foot() override;

protected:
    /// Mark-up between the title and the index; the base has none.
    virtual std::string top() const;
    /// What the script works with, as mark-up; the base has nothing.
    virtual std::string data() const;

    /// Of the part that was added last.
    const std::string& last_anchor() const { return last_anchor_; }
    bool has_index() const { return texts_.size() > 1; }

private:
    const PageText& script_;
    std::string title_, last_anchor_;
    std::vector<std::string> listings_, texts_;     // of the parts
    std::map<std::string, unsigned long> anchors_;  // the last number behind each
};
