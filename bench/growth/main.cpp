// growth [PART [STEP [FIRST]]]: runs every case, or those with that part in their names and of them
// every STEP-th from FIRST on, counted from 0, at one, two and four times its size, and has
// callgrind count the instructions of each.
#include <malloc.h>
#include <valgrind/callgrind.h>

#include <cstdio>
#include <cstdlib>

#include "bench/growth/Case.h"

namespace {

void run(const Case& c) {
    c.prepare(c.size)();  // whatever is made once is made now
    for (const unsigned int size : {c.size, 2 * c.size, 4 * c.size}) {
        const Operation operation = c.prepare(size);
        malloc_trim(
            0);  // puts in order now what was given back, and not in the middle of the operation
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

int main(int argc, char** argv) {
    if (RUNNING_ON_VALGRIND == 0) {
        std::fputs("growth: to be run by callgrind\n", stderr);
        return 2;
    }
    const std::string part = argc > 1 ? argv[1] : "";
    const unsigned long step = argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1;
    const unsigned long first = argc > 3 ? std::strtoul(argv[3], nullptr, 10) : 0;
    unsigned long number = 0;
    for (const auto cases : {style_cases, text_cases, comparison_cases, task_cases, edit_cases,
                             check_cases, output_cases}) {
        for (const Case& c : cases()) {
            if (c.name.find(part) != std::string::npos && number++ % step == first) run(c);
        }
    }
}
