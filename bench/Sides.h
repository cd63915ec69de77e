#pragma once

#include <benchmark/benchmark.h>

namespace penwright {

/// Runs a benchmark over square tables of 100 to 10^6 values, about ten times as many each time; its argument is the
/// side.
inline void forEachSide(benchmark::internal::Benchmark *benchmark)
{
    for (const int side : {10, 32, 100, 316, 1000})
        benchmark->Arg(side);
}

}  // namespace penwright
