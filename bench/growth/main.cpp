// Runs every case at one, two and four times its size, and has callgrind count the instructions of
// each.
#include <valgrind/callgrind.h>

#include <cstdio>

#include "bench/growth/Case.h"

namespace {

void run(const Case& c) {
    for (const unsigned int size : {c.size, 2 * c.size, 4 * c.size}) {
        c.prepare(size)();  // whatever is made once is made now
        const Operation operation = c.prepare(size);
        static std::string label;  // read after the request has returned
        label = c.name + '/' + std::to_string(size);
        CALLGRIND_ZERO_STATS;
        CALLGRIND_TOGGLE_COLLECT;
        operation();
        CALLGRIND_TOGGLE_COLLECT;
        CALLGRIND_DUMP_STATS_AT(label.c_str());
    }
}

}  // namespace

int main() {
    if (RUNNING_ON_VALGRIND == 0) {
        std::fputs("growth: to be run by callgrind\n", stderr);
        return 2;
    }
    for (const Case& c : style_cases()) run(c);
    for (const Case& c : text_cases()) run(c);
    for (const Case& c : comparison_cases()) run(c);
    for (const Case& c : edit_cases()) run(c);
    for (const Case& c : check_cases()) run(c);
    for (const Case& c : page_cases()) run(c);
}
