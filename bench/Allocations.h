#pragma once

/// The allocations that the whole program has made so far.
unsigned long allocations();
