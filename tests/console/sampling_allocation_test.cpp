// Counts every use of the heap in this test program, to show that looking at the record needs none: views
// that are open must not make the heap's work the session's.
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <new>
#include <string>

#include "console/grid_picture.h"
#include "console/grid_raster.h"
#include "console/strip_chart.h"
#include "support/navigation_station.h"
#include "support/silent_link.h"

namespace {
std::size_t allocations = 0;
}

// The compiler cannot see that these replacements belong together.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace quorrin {
namespace {

struct SamplingAllocation : testing::Test, protected NavigationStation {
    SamplingAllocation() {
        values.motLinkUp = true;
        values.tiLinkUp = true;
        values.encoderDataValid = true;
        values.irRange.fill(0.4);
        values.sonarRange.fill(1.1);
        navigator.TargetX = 1;
        navigator.run();
        navigator.continue_();
    }
    SilentLink silent;
    speedP2PVFH navigator{clock, values, controls, silent};
};

TEST_F(SamplingAllocation, TheCounterSeesTheHeap) {
    const std::size_t before = allocations;
    const auto text = std::make_unique<std::string>(100, 'x');
    EXPECT_GE(allocations, before + 2);
}

TEST_F(SamplingAllocation, ChartsTakeSamplesWithoutTheHeapWrappingToo) {
    std::array<std::unique_ptr<StripChart>, kChartKinds> charts;
    for (std::size_t i = 0; i < kChartKinds; ++i)
        charts[i] = std::make_unique<StripChart>(static_cast<ChartKind>(i));
    const std::size_t before = allocations;
    for (int tick = 0; tick < 2000; ++tick)
        for (auto& chart : charts) chart->sample(tick * 0.1, values);
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(charts[0]->count(), StripChart::kSamples);
}

TEST_F(SamplingAllocation, TheGridsPictureIsMadeWithoutTheHeap) {
    const auto raster = std::make_unique<GridRaster>();
    const GridWindow window;
    int drawn = 0;
    const std::size_t before = allocations;
    for (std::int16_t i = 0; i < 100; ++i) {
        values.certaintyGrid[80][90] = static_cast<std::int16_t>(1 + i % 15);
        raster->update(values, [&](int, int, int) { ++drawn; });
        EXPECT_TRUE(gridPicture(values, controls, &navigator, window).guidance);
        EXPECT_NE(guidanceWords(values, &navigator), nullptr);
    }
    EXPECT_EQ(allocations, before);
    EXPECT_EQ(drawn, 100);
}

}  // namespace
}  // namespace quorrin
