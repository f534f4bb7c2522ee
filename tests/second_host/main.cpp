#include <iostream>
#include <stdexcept>

#include "finders/CifChemicalNameStyleFinder.h"
#include "markup/TevoRichTextGenerator.h"
#include "text/TextItem.h"

namespace {

bool null_handle_is_the_hosts() {
    try {
        TextItem(THandle<InputTextStyleFinder>(), "x");
        return false;
    } catch (const std::logic_error& error) {
        return std::string(error.what()) == "minimal host: null handle";
    }
}

}  // namespace

int main() {
    TevoRichTextGenerator generator;
    const TextItem item(make_handle<CifChemicalNameStyleFinder>(), "\\m~3~-oxo-\\k^2^N");
    const std::string text = item.mark_up_text(generator);
    std::cout << text << '\n';
    return text == "mu!3$-oxo-kappa$2!N" && null_handle_is_the_hosts() ? 0 : 1;
}
