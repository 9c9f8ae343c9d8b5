// What the live views cost the main thread: one drawing of all of them at once, and one look as it comes ten
// times a second, against filling the same picture with one colour, all in the same run.
//
// The station of the picture wanders in virtual time beside a simulated robot. No screen is needed.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <vector>

#include "desktop/theme/theme.h"
#include "desktop/views/live_views.h"
#include "figure.h"
#include "platform/host/stopwatch.h"
#include "support/closed_loop.h"

namespace quorrin::bench {
namespace {

constexpr int kLooks = 300;

// The middle of many times, in seconds, of the work that follows each untimed preparation: others that use
// the machine disturb few of them.
template <typename Prepare, typename Work>
double medianSeconds(int times, Prepare prepare, Work work) {
    std::vector<double> taken;
    for (int i = 0; i < times; ++i) {
        prepare();
        const Stopwatch watch;
        work();
        taken.push_back(watch.seconds());
    }
    std::nth_element(taken.begin(), taken.begin() + times / 2, taken.end());
    return taken[static_cast<std::size_t>(times / 2)];
}

int run(QApplication& application) {
    applyTheme(application, lightTheme());
    ClosedLoop loop(shippedSite("office"));
    LiveViews views(liveSource(*loop.station, loop.clock));
    views.resize(1240, 720);
    views.show();
    if (!loop.runUntilMode("wondering", 20)) return 1;
    for (int i = 0; i < 600; ++i) {
        loop.run(0.1);
        views.panel().refresh();
    }
    QImage picture(views.size(), QImage::Format_ARGB32_Premultiplied);
    const auto wander = [&] { loop.run(0.1); };
    const auto wanderAndLook = [&] {
        loop.run(0.1);
        views.panel().refresh();
    };
    const double fill = medianSeconds(kLooks, wander, [&] {
        QPainter painter(&picture);
        painter.fillRect(picture.rect(), Qt::darkGray);
    });
    const double paint = medianSeconds(kLooks, wanderAndLook, [&] { views.render(&picture); });
    const double look = medianSeconds(kLooks, wander, [&] { views.panel().refresh(); });
    printFigure("live views, one drawing of all", paint * 1000, "ms");
    printFigure("live views, one drawing of all, ratio", paint / fill, "times filling the same picture");
    printFigure("live views, one look at the record", look * 1e6, "us");
    return 0;
}

}  // namespace
}  // namespace quorrin::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return quorrin::bench::run(application);
}
