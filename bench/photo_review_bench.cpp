// What the operator waits for in the review of archived pictures: until a day of 50,000 is open, its list on
// the screen, and what one picture of the playback costs, which has 100 ms when a fast key is held.
//
// The time that passes is worth as much as the load beside it says; the processor's time holds on a busy
// machine, too.
//
// Files on the real disk, a list and a picture bound as in the station's window. No screen is needed.
#include <QApplication>
#include <QHBoxLayout>
#include <QListView>
#include <algorithm>
#include <ctime>
#include <vector>

#include "desktop/binding/bind.h"
#include "figure.h"
#include "imaging/archive_names.h"
#include "imaging/photo_review.h"
#include "platform/host/posix_files.h"
#include "platform/host/stopwatch.h"
#include "platform/virtual/virtual_clock.h"
#include "support/picture_files.h"
#include "support/temp_folder.h"

namespace quorrin::bench {
namespace {

constexpr int kPictures = 50'000;
constexpr int kOpenings = 9;
constexpr int kTicks = 100;
constexpr double kOpeningAimMs = 100;
constexpr double kPictureAimMs = 100;

struct Cost {
    double passedMs = 0;
    double processorMs = 0;
};

double median(const std::vector<Cost>& costs, double Cost::*part) {
    std::vector<double> values;
    for (const Cost& cost : costs) values.push_back(cost.*part);
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2),
                     values.end());
    return values[values.size() / 2];
}

// A second and a half lie between two of them; the first ones are pictures, the others need no content.
bool fillDay(PosixFiles& files, const std::string& folder) {
    const std::string picture = jpegFile(*scenePicture(640, 480), 75);
    if (!files.createFolder(folder)) return false;
    const CivilTime midnight{2026, 11, 20};
    for (int i = 0; i < kPictures; ++i) {
        const std::string name = archivedPictureName(plusSeconds(midnight, i * 3 / 2), i % 5);
        if (!files.writeVolatile(folder + "/" + name, i < 2 * kTicks ? picture : "x")) return false;
    }
    return true;
}

struct Review {
    explicit Review(const std::string& applicationFolder) {
        paths.applicationFolder = applicationFolder;
        form.show();
        controls.cobAvailDate.addItem("2026-11-20");
        auto* const row = new QHBoxLayout(&window);
        row->addWidget(list);
        row->addWidget(picture);
        bind(*list, controls.lstPlayVideo, acts);
        bind(*picture, controls.picPlayVideo, acts);
        window.resize(640, 400);
        window.show();
        QApplication::processEvents();
    }
    template <typename Work>
    Cost costOf(Work work) {
        const Stopwatch watch;
        const std::clock_t before = std::clock();
        work();
        QApplication::processEvents();
        window.repaint();
        const std::clock_t after = std::clock();
        return {watch.seconds() * 1000, static_cast<double>(after - before) * 1000 / CLOCKS_PER_SEC};
    }

    VirtualClock clock;
    PosixFiles files;
    PathValues paths;
    Form form{"frmGUI"};
    ArchiveControls controls{form, clock};
    MainFormValues values;
    PhotoReview review{files, paths, controls, values, [](const ReviewFault&) {}};
    OperatorActs acts{clock};
    QWidget window;
    QListView* list = new QListView;
    PictureView* picture = new PictureView;
};

int run() {
    const TempFolder folder;
    PosixFiles files;
    if (!fillDay(files, archiveDayFolder(folder.path(), "2026-11-20"))) return 1;
    Review review(folder.path());
    std::vector<Cost> openings;
    for (int i = 0; i < kOpenings; ++i)
        openings.push_back(review.costOf([&] { review.controls.cobAvailDate.operatorChoose("2026-11-20"); }));
    if (review.values.fileTolNum != kPictures) return 1;
    std::vector<Cost> pictures;
    for (int i = 0; i < kTicks; ++i) pictures.push_back(review.costOf([&] { review.clock.runFor(300); }));
    if (review.values.playingNumber != kTicks || review.picture->image().isNull()) return 1;
    printFigure("review, a day of 50,000 pictures opens", median(openings, &Cost::passedMs), "ms",
                kOpeningAimMs);
    printFigure("review, the same, processor time", median(openings, &Cost::processorMs), "ms",
                kOpeningAimMs);
    printFigure("review, one picture of 640x480", median(pictures, &Cost::passedMs), "ms", kPictureAimMs);
    printFigure("review, the same picture, processor time", median(pictures, &Cost::processorMs), "ms",
                kPictureAimMs);
    return 0;
}

}  // namespace
}  // namespace quorrin::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return quorrin::bench::run();
}
