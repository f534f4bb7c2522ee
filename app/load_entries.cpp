#include "app/load_entries.h"

#include <new>
#include <utility>

#include "app/CifFile.h"
#include "app/Diagnostics.h"
#include "app/InputFile.h"

bool for_each_entry(const std::string& file, const std::function<void(CifEntry)>& take) {
    bool good = true;
    const auto refuse = [&good](const std::string& message) {
        report(message);
        good = false;
    };
    try {
        for_each_cif_entry(file, [&](CifEntry entry) {
            for (const CifEntry::Problem& problem : entry.problems) {
                report(file, problem.line, problem.message);
                good = false;
            }
            take(std::move(entry));
        });
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        refuse(error.what());
    } catch (const std::bad_alloc&) {
        refuse(file + ": out of memory");
    }
    return good;
}

LoadedEntries load_entries(const std::string& file) {
    LoadedEntries loaded{{}, true};
    loaded.good =
        for_each_entry(file, [&](CifEntry entry) { loaded.entries.push_back(std::move(entry)); });
    return loaded;
}
