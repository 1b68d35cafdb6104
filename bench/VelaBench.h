#ifndef VELABENCH_H
#define VELABENCH_H

#include <benchmark/benchmark.h>

#include <QString>

#include <cstddef>
#include <functional>
#include <string>

// A benchmark case measured against its baseline in the same run. The ratio reported is
// (case time / caseItems) / (baseline time / baselineItems): for a plain comparison both item
// counts are 1; for a scaling case the baseline is the smallest size and the items are the sizes.
struct BenchCase
{
    std::string name;
    std::function<void(benchmark::State &)> run;
    double caseItems = 1;
    std::function<void(benchmark::State &)> baseline; // empty: reported as a figure only
    double baselineItems = 1;
    double goal = 0; // largest acceptable ratio
};

int RegisterBenchCase(const BenchCase &benchCase);

// A figure measured outside Google Benchmark (heap bytes), reported in the same table.
struct BenchFigure
{
    std::string name;
    std::function<double()> measureCase;
    std::function<double()> measureBaseline;
    std::string unit;
    double goal;
};

int RegisterBenchFigure(const BenchFigure &figure);

// Bytes allocated through operator new while `work` runs.
std::size_t HeapBytesDuring(const std::function<void()> &work);

#define BENCH_CONCAT2(a, b) a##b
#define BENCH_CONCAT(a, b) BENCH_CONCAT2(a, b)
#define VELA_BENCH_CASE(...)                                                                       \
    static const int BENCH_CONCAT(benchCase, __LINE__) = RegisterBenchCase(__VA_ARGS__);
#define VELA_BENCH_FIGURE(...)                                                                     \
    static const int BENCH_CONCAT(benchFigure, __LINE__) = RegisterBenchFigure(__VA_ARGS__);

#endif // VELABENCH_H
