#include "host/KOVRLog.h"

#include <iostream>

int KOVRLog::level_ = 0;
int KOVRLog::minimum_level_ = 0;

std::ostream& KOVRLog::start_debug_line(int level) {
    return std::clog << "debug " << level << ": ";
}

void KOVRLog::end_debug_line() { std::clog << std::endl; }
