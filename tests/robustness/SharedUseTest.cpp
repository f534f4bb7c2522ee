// What may be shared is used by many threads at once; a lane of the tests watches their accesses.
#include <gmock/gmock.h>

#include <thread>

#include "fields/LMRFieldNames.h"
#include "finders/CifChemicalNameStyleFinder.h"
#include "finders/TevoChemicalNameStyleFinder.h"
#include "host/CrystalStructureDatabaseEntry.h"
#include "markup/Html5TagFactory.h"
#include "markup/RichTextTarget.h"
#include "markup/TextItemToStringColor.h"
#include "markup/TextItemToUnicodeGreek.h"
#include "search/CommonSubstringFinderAdapter.h"
#include "search/MultipleLineTextComparison.h"
#include "search/NumericComparison.h"
#include "search/SurnameComparison.h"
#include "suppliers/FieldTextSupplier.h"
#include "text/TextItem.h"

namespace {

/// What all threads share.
struct Shared {
    Shared() {
        numbers->set_search_term("1.5 2");
        authors->set_search_term("A.Smith, B.Jones");
        substrings->set_search_term("D-glucose");
    }

    THandle<RichTextTagFactory> tags = make_handle<Html5TagFactory>();
    THandle<TextItemToOtherGreek> letters = make_handle<TextItemToUnicodeGreek>();
    THandle<NumericComparison> numbers = make_handle<NumericComparison>(1);
    THandle<SurnameComparison> authors = make_handle<SurnameComparison>();
    THandle<CommonSubstringFinderAdapter> substrings =
        make_handle<CommonSubstringFinderAdapter>(StringNormalisationPolicy(0x0C, ""), 3U, "");
    THandle<CrystalStructureDatabaseEntry> entry = make_handle<CrystalStructureDatabaseEntry>();
};

class Generator : public RichTextGenerator {
public:
    explicit Generator(const Shared& shared) : RichTextGenerator(shared.tags, shared.letters) {}
};

/// One thread's use of it, with items, finders and generators of its own.
std::string use(const Shared& shared) {
    std::string all;
    for (const bool cif : {false, true}) {
        const auto finder =
            cif ? THandle<InputTextStyleFinder>(make_handle<CifChemicalNameStyleFinder>())
                : THandle<InputTextStyleFinder>(make_handle<TevoChemicalNameStyleFinder>());
        TextItem item(finder, cif ? "\\a-C~2~H^3+^" : "alpha-D-gluco!2$-kappa$2!N");
        item.create_color(0, 1, TextItem::red);
        Generator generator(shared);
        all += item.mark_up_text(generator);
        for (const RichTextTarget& target : rich_text_targets()) {
            all += item.mark_up_text(*target.make_generator());
        }
    }
    std::vector<StringSlice> slices;
    for (const TextSearch* search : {static_cast<const TextSearch*>(shared.numbers.get()),
                                     static_cast<const TextSearch*>(shared.authors.get()),
                                     static_cast<const TextSearch*>(shared.substrings.get())}) {
        search->search("1.5(2) B.Jones, beta-D-gluco-pyranose", slices);
    }
    for (const StringSlice& slice : slices) all += std::to_string(slice.from()) + ' ';
    all += TextItemToStringColor().convert(TextItem::green4);
    std::vector<LMRFieldNames::TextID> fields;
    LMRFieldNames::internal_fields(fields);
    for (const LMRFieldNames::TextID id : fields) {
        all += LMRFieldNames::text(id) + FieldTextSupplier(id).text(shared.entry);
    }
    return all;
}

}  // namespace

TEST(SharedUse, ThreadsSeeTheSame) {
    const Shared shared;
    const std::string expected = use(shared);
    std::vector<std::string> seen(8);
    std::vector<std::thread> threads;
    threads.reserve(seen.size());
    for (std::string& all : seen) {
        threads.emplace_back([&] {
            for (int round = 0; round < 50; ++round) all = use(shared);
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_THAT(seen, testing::Each(expected));
}
