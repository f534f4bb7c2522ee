#include "app/load_entries.h"

#include <new>

#include "app/CifFile.h"
#include "app/Diagnostics.h"
#include "app/InputFile.h"

LoadedEntries load_entries(const std::string& file) {
    LoadedEntries loaded{{}, true};
    const auto refuse = [&loaded](const std::string& message) {
        report(message);
        loaded.good = false;
    };
    try {
        loaded.entries = read_cif_entries(file);
    } catch (const InputError& error) {
        refuse(error.what());
    } catch (const CifError& error) {
        refuse(error.what());
    } catch (const std::bad_alloc&) {
        refuse(file + ": out of memory");
    }
    for (const CifEntry& entry : loaded.entries) {
        for (const CifEntry::Problem& problem : entry.problems) {
            report(file, problem.line, problem.message);
            loaded.good = false;
        }
    }
    return loaded;
}
