#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <iostream>
#include <new>
#include <string>
#include <vector>

#include "tests/Allocations.h"

/// An operation on objects of its own, which tells what it has made.
using FailingOperation = std::function<std::string()>;

struct FailingCase {
    std::string name;
    std::function<FailingOperation()> prepare;
};

/// Calls with the n-th allocation failing; returns whether std::bad_alloc came out. Whether there
/// were so many allocations is what stop_failing() then says.
template <class Call>
bool throws_at(unsigned int n, bool all_behind, const Call& call) {
    fail_allocation(n, all_behind);
    try {
        call();
    } catch (const std::bad_alloc&) {
        return true;
    }
    return false;
}

/// Runs the operation with its n-th allocation failing; returns whether it had so many. A failure
/// that does not come out changes nothing: some algorithms do with less memory.
inline bool run_failing(const FailingCase& c, unsigned int n, bool all_behind,
                        const std::string& expected) {
    const long before = live_allocations();
    bool failed = false;
    {
        const FailingOperation operation = c.prepare();
        std::string made;
        const bool threw = throws_at(n, all_behind, [&] { made = operation(); });
        failed = stop_failing();
        EXPECT_TRUE(failed || !threw) << c.name;
        if (!threw) {
            EXPECT_EQ(made, expected) << c.name << ", without allocation " << n;
        }
        EXPECT_EQ(operation(), expected) << c.name << ", allocation " << n;
    }
    if (!testing::Test::HasFailure()) {  // a message takes memory too
        EXPECT_EQ(live_allocations(), before) << c.name << " leaks after allocation " << n;
    }
    return failed;
}

/// Runs each with every allocation failing, once and with all behind it; of operations with more
/// than `dense` of them fewer and fewer.
inline void expect_failures_to_come_out(const std::vector<FailingCase>& cases,
                                        unsigned int dense = 0xFFFF) {
    for (const FailingCase& c : cases) {
        const std::string expected = c.prepare()();
        for (const bool all_behind : {false, true}) {
            unsigned int n = 1;
            while (run_failing(c, n, all_behind, expected)) n += 1 + n / dense;
            if (!all_behind) std::cout << c.name << ": " << n - 1 << " allocations\n";
            if (testing::Test::HasFailure()) return;
        }
    }
}
