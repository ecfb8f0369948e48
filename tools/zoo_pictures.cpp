// Takes pictures of the sample projects at 0, 10, 60 and 600 seconds, without a window and without waiting.
// Usage: zentrik_zoo_pictures PROGRAM_FOLDER PICTURES [NAME...]
// Writes PICTURES/NAME.png (blanks become hyphens), the small picture of the manual, and sheets/NAME.png in
// the present folder, which shows the smallest scene at those times and the large one at the last two.

#include "basics/units.h"
#include "display/scene.h"
#include "library/zoo.h"
#include "model/store.h"
#include "scenes/visit.h"

#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <exception>

namespace {

using namespace zentrik;
using scenes::Size;

constexpr double times[] = {0, 10, 60, 600};  // seconds

QImage photograph(const Editor& ed, const SpritePictures& sprites) {
    QImage image(ed.sceneWidth / twipsPerPixel, ed.sceneHeight / twipsPerPixel, QImage::Format_RGB32);
    QPainter painter(&image);
    drawScene(painter, ed, sprites);
    return image;
}

// What cannot be seen in a picture: whether anything was out of sight or under the read-out in between.
struct Extremes {
    double top = 1e9, left = 1e9, right = -1e9, bottom = -1e9, fastest = 0;

    void add(const Editor& ed) {
        forEachNode(ed, [&](std::int32_t, const Node& node) {
            top = std::min<double>(top, node.Y), bottom = std::max<double>(bottom, node.Y);
            left = std::min<double>(left, node.X), right = std::max<double>(right, node.X);
            fastest = std::max(fastest, std::hypot(double(node.Vx), double(node.Vy)));
        });
    }
};

std::vector<QImage> play(Editor ed, const SpritePictures& sprites, Extremes& extremes) {
    std::vector<QImage> pictures;
    scenes::start(ed);
    int ticks = 0;
    for (const double time : times) {
        const double perTick = ed.timerPeriod / 1000.0;
        for (; ticks * perTick < time && ed.Timer1.enabled; ++ticks) {
            scenes::tickSample(ed);
            if (ticks % 20 == 0) extremes.add(ed);
        }
        pictures.push_back(photograph(ed, sprites));
    }
    if (!ed.Timer1.enabled) std::printf("  stopped: %s\n", ed.panels[4].c_str());
    return pictures;
}

class Album {
public:
    Album(std::string folder, QString pictures) : folder_(std::move(folder)), pictures_(std::move(pictures)) {
        sprites_.read(folder_ + "/sprites");
    }

    void add(const std::string& name) {
        const std::vector<QImage> small = play(name, scenes::smallestScene);
        const std::vector<QImage> large = play(name, scenes::largeScene);
        const QString file = "/" + QString::fromStdString(name).replace(' ', '-') + ".png";
        const QImage half = small[1].scaledToWidth(480, Qt::SmoothTransformation);
        save(half, pictures_ + file);
        save(sheet(small, large), "sheets" + file);
    }

private:
    std::string folder_;
    QString pictures_;
    SpritePictures sprites_;

    std::vector<QImage> play(const std::string& name, Size scene) const {
        Extremes extremes;
        auto pictures =
            ::play(scenes::openSample(folder_, name, scene, sprites_.names()), sprites_, extremes);
        std::fflush(stdout);
        std::printf("%s in %d x %d: x %.0f to %.0f, y %.0f to %.0f, speed to %.0f\n", name.c_str(),
                    scene.width, scene.height, extremes.left, extremes.right, extremes.top, extremes.bottom,
                    extremes.fastest);
        return pictures;
    }
    static QImage sheet(const std::vector<QImage>& small, const std::vector<QImage>& large) {
        const int gap = 4, width = small[0].width(), height = small[0].height() + gap;
        const QImage left = large[2].scaledToWidth(width / 2 - gap, Qt::SmoothTransformation);
        const QImage right = large[3].scaledToWidth(width / 2 - gap, Qt::SmoothTransformation);
        QImage page(width, static_cast<int>(small.size()) * height + left.height(), QImage::Format_RGB32);
        page.fill(Qt::gray);
        QPainter painter(&page);
        int y = 0;
        for (const QImage& picture : small) painter.drawImage(0, y, picture), y += height;
        painter.drawImage(0, y, left);
        painter.drawImage(width / 2, y, right);
        return page;
    }
    static void save(const QImage& image, const QString& file) {
        if (!image.save(file)) std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
    }
};

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc < 3) {
        std::fputs("usage: zentrik_zoo_pictures PROGRAM_FOLDER PICTURES [NAME...]\n", stderr);
        return 2;
    }
    QDir().mkpath("sheets");
    QDir().mkpath(QString::fromLocal8Bit(argv[2]));
    std::vector<std::string> names(argv + 3, argv + argc);
    if (names.empty()) names = projectNames(argv[1]);
    Album album(argv[1], QString::fromLocal8Bit(argv[2]));
    try {
        for (const std::string& name : names) album.add(name);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
    return 0;
}
