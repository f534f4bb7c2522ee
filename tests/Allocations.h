#pragma once

// The allocations of the whole program, the library's included.

/// How many there have been so far, and how many of them have not been freed.
unsigned long allocations();
long live_allocations();

/// Makes the n-th allocation from now on fail, and with `all_behind` all that follow it.
void fail_allocation(unsigned int n, bool all_behind);
/// Lets all succeed again; returns whether any has failed.
bool stop_failing();
