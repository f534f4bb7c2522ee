#include "markup/RichTextTarget.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "markup/AnsiRichTextGenerator.h"
#include "markup/CifRichTextGenerator.h"
#include "markup/CifTextRichTextGenerator.h"
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

constexpr RichTextLayout lines = {"", "\n", "", "    ", ": ", ""};
constexpr RichTextLayout description = {"\\section*{", "}\n\\begin{description}\n", "\\item[{", "",
                                        "}] ",         "\\end{description}\n"};
constexpr RichTextLayout bullets = {"## ", "\n\n", "- ", "", ": ", "\n"};

using Use = RichTextTarget::Use;

constexpr RichTextTarget target_rows[] = {
    {"tevo", "tevo", "the database's own mark-up", false, make<TevoRichTextGenerator>, lines,
     Use::none},
    {"cif", "cif", "the text conventions of CIF files", false, make<CifRichTextGenerator>, lines,
     Use::none},
    {"html", "html", "HTML with font tags and <p> at the end; the text is not escaped", false,
     make<HtmlRichTextGenerator>, lines, Use::none},
    {"qt", "html", "Qt rich text; the text is not escaped", false, make<QtRichTextGenerator>, lines,
     Use::none},
    {"cif-text", "cif",
     "texts of CIF files, whole: codes for all that ASCII lacks and has a code, <i>, <b>", true,
     make<CifTextRichTextGenerator>, lines, Use::none},
    {"html5", "html", "HTML5 for pages: text escaped, Greek letters in Unicode, bars as overlines",
     true, make<Html5RichTextGenerator>, lines, Use::page},
    {"latex", "tex", "LaTeX, with the package xcolor for colours; the text is escaped", true,
     make<LatexRichTextGenerator>, description, Use::none},
    {"markdown", "md", "Markdown (CommonMark), HTML's tags where it has none; the text is escaped",
     true, make<MarkdownRichTextGenerator>, bullets, Use::none},
    {"unicode", "txt", "plain text: raised and lowered characters, otherwise _{...} and ^{...}",
     true, make<UnicodeRichTextGenerator>, lines, Use::plain_terminal},
    {"ansi", "ansi",
     "plain text with bold, italic, underlined and coloured characters of terminals", true,
     make<AnsiRichTextGenerator>, lines, Use::terminal},
};

}  // namespace

std::span<const RichTextTarget> rich_text_targets() { return target_rows; }

const RichTextTarget& rich_text_target_for(RichTextTarget::Use use) {
    const auto* const target =
        std::find_if(std::begin(target_rows), std::end(target_rows),
                     [use](const RichTextTarget& candidate) { return candidate.use == use; });
    if (use == Use::none || target == std::end(target_rows)) {
        throw std::invalid_argument("rich text target for no use");
    }
    return *target;
}
