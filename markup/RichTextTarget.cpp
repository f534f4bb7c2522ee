#include "markup/RichTextTarget.h"

#include "markup/AnsiRichTextGenerator.h"
#include "markup/CifRichTextGenerator.h"
#include "markup/Html5RichTextGenerator.h"
#include "markup/HtmlRichTextGenerator.h"
#include "markup/LatexRichTextGenerator.h"
#include "markup/MarkdownRichTextGenerator.h"
#include "markup/QtRichTextGenerator.h"
#include "markup/TevoRichTextGenerator.h"
#include "markup/UnicodeRichTextGenerator.h"

namespace {

template <class Generator>
THandle<RichTextGenerator> make() {
    return make_handle<Generator>();
}

constexpr RichTextTarget target_rows[] = {
    {"tevo", "tevo", "the database's own mark-up", false, make<TevoRichTextGenerator>},
    {"cif", "cif", "the text conventions of CIF files", false, make<CifRichTextGenerator>},
    {"html", "html", "HTML with font tags and <p> at the end; the text is not escaped", false,
     make<HtmlRichTextGenerator>},
    {"qt", "html", "Qt rich text; the text is not escaped", false, make<QtRichTextGenerator>},
    {"html5", "html", "HTML5 for pages: text escaped, Greek letters in Unicode, bars as overlines",
     true, make<Html5RichTextGenerator>},
    {"latex", "tex", "LaTeX, with the package xcolor for colours; the text is escaped", true,
     make<LatexRichTextGenerator>},
    {"markdown", "md", "Markdown (CommonMark), HTML's tags where it has none; the text is escaped",
     true, make<MarkdownRichTextGenerator>},
    {"unicode", "txt", "plain text: raised and lowered characters, otherwise _{...} and ^{...}",
     true, make<UnicodeRichTextGenerator>},
    {"ansi", "ansi",
     "plain text with bold, italic, underlined and coloured characters of terminals", true,
     make<AnsiRichTextGenerator>},
};

}  // namespace

std::span<const RichTextTarget> rich_text_targets() { return target_rows; }
