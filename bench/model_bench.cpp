// Single steps on the road of a screenshot, for finding out where time goes.

#include "platform/linux/LinuxCaptureMarkers.h"
#include "screenshots/CaptureName.h"
#include "screenshots/ScreenshotTimeline.h"

#include <benchmark/benchmark.h>

using namespace tembra;

namespace {

std::vector<Shot> shots(int count, Instant now) {
    std::vector<Shot> list;
    for (int i = 0; i < count; ++i)
        list.push_back({.location = QStringLiteral("/home/ada/Pictures/Screenshots/%1.png").arg(i),
                        .createdAt = now - std::chrono::minutes(i)});
    return list;
}

void sectionsOfShots(benchmark::State &state) {
    const Instant now = systemNow();
    const std::vector<Shot> list = shots(static_cast<int>(state.range(0)), now);
    for (auto _ : state)
        benchmark::DoNotOptimize(ScreenshotTimeline::sections(list, {}, now, QTimeZone::utc()));
}
BENCHMARK(sectionsOfShots)->Arg(1'000)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void nameOfALinuxTool(benchmark::State &state) {
    const LinuxCaptureMarkers markers;
    const QString name = QStringLiteral("20261121_10h15m22s_grim.png");
    for (auto _ : state)
        benchmark::DoNotOptimize(markers.nameSaysCapture(name, {}));
}
BENCHMARK(nameOfALinuxTool);

void nameOfACapture(benchmark::State &state) {
    const QString name = QStringLiteral("Screenshot 2026-11-21 at 10.15.22");
    for (auto _ : state)
        benchmark::DoNotOptimize(isCaptureName(name, false, {}));
}
BENCHMARK(nameOfACapture);

} // namespace
