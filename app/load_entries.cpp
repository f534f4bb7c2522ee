#include "app/load_entries.h"

#include <new>

#include "app/CifFile.h"
#include "app/Diagnostics.h"
#include "app/InputFile.h"

LoadedEntries load_entries(const std::string& file) {
    LoadedEntries loaded{{}, true};
    try {
        loaded.entries = read_cif_entries(file);
    } catch (const InputError& error) {
        report(error.what());
        loaded.good = false;
    } catch (const CifError& error) {
        report(error.what());
        loaded.good = false;
    } catch (const std::bad_alloc&) {
        report(file + ": out of memory");
        loaded.good = false;
    }
    for (const CifEntry& entry : loaded.entries) {
        for (const CifEntry::Problem& problem : entry.problems) {
            report(file, problem.line, problem.message);
            loaded.good = false;
        }
    }
    return loaded;
}
