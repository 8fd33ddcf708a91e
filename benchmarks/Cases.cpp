#include "benchmarks/Cases.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace Benchmarks {

namespace {

struct NamedCase {
    std::string name;
    std::function<std::unique_ptr<Case>()> make;
};

std::vector<NamedCase>& cases() {
    static std::vector<NamedCase> all;
    return all;
}

void measureTime(benchmark::State& state, const NamedCase& named) {
    constexpr std::int64_t BATCH = 100;
    const auto made = named.make();
    while (state.KeepRunningBatch(BATCH))
        made->run(BATCH);
}

int listNames() {
    for (const NamedCase& named : cases())
        std::puts(named.name.c_str());
    return 0;
}

int runOnce(std::string_view name, std::int64_t operations) {
    for (const NamedCase& named : cases()) {
        if (named.name != name)
            continue;
        named.make()->run(operations);
        return 0;
    }
    std::fprintf(stderr, "no case of the name \"%s\"\n", std::string(name).c_str());
    return 2;
}

}

void addCase(const std::string& name, std::function<std::unique_ptr<Case>()> make) {
    cases().push_back({name, std::move(make)});
}

}

int main(int argc, char** argv) {
    using namespace Benchmarks;
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--list")
        return listNames();
    if (arguments.size() == 3 && arguments[0] == "--count")
        return runOnce(arguments[1], std::atoll(argv[3]));
    for (const NamedCase& named : cases())
        benchmark::RegisterBenchmark(named.name.c_str(),
                                     [&named](benchmark::State& state) { measureTime(state, named); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
