#include "bench/GrowthReporter.h"

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    GrowthReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
}
