#include "bench/service/RatioReporter.h"

#include <vector>

void addReplyBenchmarks();
void addRequestBenchmarks();

int main(int argc, char* argv[])
{
    // Interleaved repetitions, whose median stays put while other programs run. The command line may say
    // otherwise.
    char repetitions[] = "--benchmark_repetitions=25";
    char interleaving[] = "--benchmark_enable_random_interleaving=true";
    char minimumTime[] = "--benchmark_min_time=0.05";
    std::vector<char*> arguments{argv[0], repetitions, interleaving, minimumTime};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());

    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    addRequestBenchmarks();
    addReplyBenchmarks();
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
