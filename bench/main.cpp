#include "bench/RatioReporter.h"

void addReplyBenchmarks();
void addRequestBenchmarks();

int main(int argc, char* argv[])
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    addRequestBenchmarks();
    addReplyBenchmarks();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
