#include "app/Target.h"

#include "markup/CifRichTextGenerator.h"
#include "markup/Html5RichTextGenerator.h"
#include "markup/HtmlRichTextGenerator.h"
#include "markup/QtRichTextGenerator.h"
#include "markup/TevoRichTextGenerator.h"

namespace {

template <class Generator>
THandle<RichTextGenerator> make() {
    return make_handle<Generator>();
}

constexpr Target target_rows[] = {
    {"tevo", "the database's own mark-up", make<TevoRichTextGenerator>, false},
    {"cif", "the text conventions of CIF files", make<CifRichTextGenerator>, false},
    {"html", "HTML with font tags, text not escaped", make<HtmlRichTextGenerator>, true},
    {"qt", "Qt rich text, text not escaped", make<QtRichTextGenerator>, true},
    {"html5", "HTML5 for pages: text escaped, Greek letters in Unicode",
     make<Html5RichTextGenerator>, true},
};

}  // namespace

std::span<const Target> targets() { return target_rows; }
