#include "BenchSupport.h"

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <ctime>
#include <map>
#include <MGraphX/HeapPolicy.h>
#include <random>

namespace
{

const QSize kPhoto(6000, 4000);
const QSize kPreview(360, 360);

QImage wordCopy(const QImage& source)
{
    QImage copy(source.size(), source.format());
    std::memcpy(copy.bits(), source.constBits(), size_t(source.sizeInBytes()));
    return copy;
}

double cpuSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

/// Seconds that a copy into a new image takes: the median of many.
double copySeconds(const QSize& size)
{
    const QImage photo = benchPhoto(size);
    const int inner = std::max(1, 24000000 / (size.width() * size.height()));
    std::array<double, 21> times;
    for (double& time : times) {
        const double start = cpuSeconds();
        for (int k = 0; k < inner; ++k) {
            const QImage copy = wordCopy(photo);
            benchmark::DoNotOptimize(copy.constBits());
        }
        time = (cpuSeconds() - start) / inner;
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

void runFilter(benchmark::State& state, const Filter& filter, const QSize& size,
               QImage::Format format, Alpha alpha)
{
    static std::map<int, double> copies;
    if (copies.count(size.width()) == 0) {
        copies[size.width()] = copySeconds(size);
    }
    const QImage photo = benchPhoto(size, format, alpha);
    const double start = cpuSeconds();
    for (auto _ : state) {
        const QImage result = filter(photo);
        benchmark::DoNotOptimize(result.constBits());
    }
    const double each = (cpuSeconds() - start) / double(state.iterations());
    state.counters["ns_px"] = each * 1e9 / (double(size.width()) * size.height());
    state.counters["x_copy"] = each / copies[size.width()];
}

} // namespace

QImage benchPhoto(const QSize& size, QImage::Format format, Alpha alpha)
{
    std::minstd_rand noise(7);
    QImage photo(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(photo.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int wave = int(90 * std::sin(x * 0.003) * std::cos(y * 0.002)) + 120;
            const auto bits = quint32(noise());
            const int fade = y * 200 / size.height() + int((bits >> 13) & 31);
            row[x] = qRgba(wave + int(bits & 15),
                           wave / 2 + int((bits >> 4) & 31) + x * 60 / size.width(),
                           220 - wave + int((bits >> 9) & 15), alpha == Alpha::Opaque ? 255 : fade);
        }
    }
    return photo.convertToFormat(format);
}

void benchFilter(const std::string& name, const Filter& fast, const Filter& plain,
                 QImage::Format format, Alpha alpha)
{
    const struct {
        const char* suffix;
        QSize size;
    } sizes[] = {{"/photo", kPhoto}, {"/preview", kPreview}};
    const struct {
        const char* suffix;
        const Filter& filter;
    } ways[] = {{"", fast}, {"/plain", plain}, {"/memcpy", wordCopy}};
    for (const auto& size : sizes) {
        for (const auto& way : ways) {
            const Filter filter = way.filter;
            const QSize pixels = size.size;
            benchmark::RegisterBenchmark(
                (name + size.suffix + way.suffix).c_str(),
                [=](benchmark::State& state) { runFilter(state, filter, pixels, format, alpha); })
                ->Unit(benchmark::kMillisecond);
        }
    }
}

int runBenchmarks(int argc, char** argv)
{
    MGraphX::keepHeap();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
