// Runs every benchmark case interleaved with its baseline and prints one table of ratios.
#include "VelaBench.h"

#include <QApplication>
#include <QSysInfo>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>
#include <vector>

// Counting allocator for the heap figures: every allocation of the process goes through here.
static std::atomic<std::size_t> g_allocatedBytes { 0 };

void *operator new(std::size_t size)
{
    g_allocatedBytes += size;
    if (void *p = std::malloc(size ? size : 1))
        return p;
    throw std::bad_alloc();
}

void operator delete(void *p) noexcept
{
    std::free(p);
}

void operator delete(void *p, std::size_t) noexcept
{
    std::free(p);
}

std::size_t HeapBytesDuring(const std::function<void()> &work)
{
    const std::size_t before = g_allocatedBytes.load();
    work();
    return g_allocatedBytes.load() - before;
}

static std::vector<BenchCase> &cases()
{
    static std::vector<BenchCase> list;
    return list;
}

static std::vector<BenchFigure> &figures()
{
    static std::vector<BenchFigure> list;
    return list;
}

int RegisterBenchCase(const BenchCase &benchCase)
{
    cases().push_back(benchCase);
    return int(cases().size());
}

int RegisterBenchFigure(const BenchFigure &figure)
{
    figures().push_back(figure);
    return int(figures().size());
}

// Keeps the median time of every benchmark, by name.
class MedianCollector : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }
    std::map<std::string, double> medians;
};

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    std::vector<char *> args(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=7";
    std::string interleave = "--benchmark_enable_random_interleaving=true";
    std::string aggregates = "--benchmark_report_aggregates_only=true";
    args.push_back(repetitions.data());
    args.push_back(interleave.data());
    args.push_back(aggregates.data());
    int count = int(args.size());
    benchmark::Initialize(&count, args.data());

    for (const BenchCase &c : cases()) {
        benchmark::RegisterBenchmark((c.name + "/case").c_str(), c.run)
            ->Unit(benchmark::kMicrosecond);
        if (c.baseline) {
            benchmark::RegisterBenchmark((c.name + "/baseline").c_str(), c.baseline)
                ->Unit(benchmark::kMicrosecond);
        }
    }
    MedianCollector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);

    std::printf("\nVela Widgets benchmarks (%s, %s)\n\n", qPrintable(QSysInfo::prettyProductName()),
                qPrintable(QSysInfo::currentCpuArchitecture()));
    std::printf("| case | case | baseline | ratio | goal | met |\n|---|---|---|---|---|---|\n");
    int missed = 0;
    for (const BenchCase &c : cases()) {
        const double caseTime = collector.medians[c.name + "/case"];
        if (!c.baseline) {
            std::printf("| %s | %.1f us | - | - | figure | - |\n", c.name.c_str(), caseTime);
            continue;
        }
        const double baseTime = collector.medians[c.name + "/baseline"];
        const double ratio = (caseTime / c.caseItems) / (baseTime / c.baselineItems);
        const bool met = ratio <= c.goal;
        missed += met ? 0 : 1;
        std::printf("| %s | %.1f us | %.1f us | %.2f | <= %.2f | %s |\n", c.name.c_str(), caseTime,
                    baseTime, ratio, c.goal, met ? "yes" : "no");
    }
    for (const BenchFigure &f : figures()) {
        const double value = f.measureCase();
        const double base = f.measureBaseline();
        const double ratio = value / base;
        const bool met = ratio <= f.goal;
        missed += met ? 0 : 1;
        std::printf("| %s | %.0f %s | %.0f %s | %.2f | <= %.2f | %s |\n", f.name.c_str(), value,
                    f.unit.c_str(), base, f.unit.c_str(), ratio, f.goal, met ? "yes" : "no");
    }
    std::printf("\n%d goal(s) missed\n", missed);
    benchmark::Shutdown();
    return 0;
}
