// Pictures of the scene as files.

#include "export/picture.h"

#include "basics/units.h"
#include "display/scene.h"
#include "model/store.h"
#include "pictures.h"
#include "scenes/scenes.h"
#include "scenes/visit.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSvgRenderer>

namespace zentrik {
namespace {

// Every layer: grid, links, barriers, animators, discs, squares, a shooter, gravity, numbers, title, sprite.
Editor everything() {
    Editor ed = scenes::openSample(ZENTRIK_SOURCE_DIR, "7 a walker", scenes::smallestScene);
    Node& shooter = nodeAt(ed, scenes::addNode(ed, 7000, 1500));
    shooter.Locked = true;
    shooter.Trigger = 1;
    Node& star = nodeAt(ed, scenes::addNode(ed, 8000, 1500));
    star.Locked = true;
    star.Gravity = 5;
    linkAt(ed, scenes::addLink(ed, 10, 11)).Barrier = true;
    ed.buttons.grid = ed.buttons.numbers = ed.buttons.activeline = ed.buttons.sprite = true;
    ed.marks.mnuDisplayTitle = ed.marks.mnuAllowSprites = true;
    ed.BackColor = 0xE0F0FF;
    ed.SelectedNode = 3;
    return ed;
}

QImage rendered(const std::string& svg, QSize size) {
    QSvgRenderer renderer(QByteArray::fromStdString(svg));
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

std::string fileOf(const Editor& ed, PictureFormat format, const Look& look = {}) {
    Subject subject(ed);
    PictureFile file = pictureFile(subject, format, look);
    EXPECT_EQ(file.problem, "");
    return file.bytes;
}

TEST(Pictures, APngIsThePaintedSceneAtItsScale) {
    const Editor ed = everything();
    for (const int scale : {1, 3}) {
        QImage scene(QSize(952, 207) * scale, QImage::Format_RGB32);
        scene.setDevicePixelRatio(scale);
        scene.fill(colourOf(ed.BackColor));
        Subject subject(ed);
        subject.sprites.setRatio(scale);
        QPainter painter(&scene);
        drawScene(painter, subject.ed, subject.sprites);
        painter.end();
        const std::string png = fileOf(ed, PictureFormat::png, {double(scale), false});
        EXPECT_EQ(difference(QImage::fromData(QByteArray::fromStdString(png)), scene).largest, 0) << scale;
    }
    const QImage clear =
        QImage::fromData(QByteArray::fromStdString(fileOf(ed, PictureFormat::png, {1, true})));
    EXPECT_EQ(qAlpha(clear.pixel(940, 200)), 0);
    EXPECT_EQ(clear.pixelColor(100, 100).alpha(), 255);  // node 1
}

TEST(Pictures, AnSvgLooksLikeTheScene) {
    constexpr QRect walker(90, 50, 180, 135), all(0, 0, 952, 207);
    Editor ed = everything();
    const auto compare = [&](const QRect& part, double perMille) {
        const QImage scene = sceneImage(Subject(ed), {});
        const PictureDifference by = softDifference(
            rendered(fileOf(ed, PictureFormat::svg), scene.size()).copy(part), scene.copy(part));
        EXPECT_LE(by.largest, 100);
        EXPECT_LE(by.perMille, perMille);
    };
    compare(all, 30);
    ed.buttons.numbers = ed.buttons.activeline = false;
    compare(walker, 30);
    EXPECT_EQ(qAlpha(rendered(fileOf(ed, PictureFormat::svg, {1, true}), all.size()).pixel(940, 200)), 0);
}

// What a PDF draws, as its operators.
QByteArray drawnIn(const std::string& pdf) {
    const QByteArray bytes = QByteArray::fromStdString(pdf);
    QByteArray drawn;
    for (qsizetype at = 0; (at = bytes.indexOf("\nstream\n", at)) >= 0;) {
        at += 8;
        const qsizetype length = bytes.indexOf("\nendstream", at) - at;
        const QByteArray size = "\xFF\xFF\xFF\x7F";
        const QByteArray plain = qUncompress(QByteArray("\0\x40\0\0", 4) + bytes.mid(at, length));
        if (!plain.isEmpty()) drawn += plain;
    }
    return drawn;
}

TEST(Pictures, VectorFilesHoldLinesAndDiscs) {
    Editor ed = everything();
    ed.buttons.sprite = false;
    const QByteArray svg = QByteArray::fromStdString(fileOf(ed, PictureFormat::svg));
    EXPECT_FALSE(svg.contains("<image"));
    EXPECT_TRUE(svg.contains("width=\"251.883mm\""))
        << svg.first(100).toStdString();  // 952 pixels, 96 an inch
    EXPECT_GE(svg.count("<circle") + svg.count("<ellipse"), 9 + 500);
    EXPECT_GE(svg.count("<polyline"), 16);

    const std::string pdf = fileOf(ed, PictureFormat::pdf);
    EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
    const QByteArray drawn = drawnIn(pdf);
    EXPECT_GE(drawn.count(" l\n"), 16);
    EXPECT_GE(drawn.count(" c\n"), 4 * (9 + 500));
    EXPECT_NE(pdf.find("/MediaBox [0 0 714"), std::string::npos) << "points of 952 pixels";
}

TEST(Pictures, OddTitlesAndSizesDoNoHarm) {
    Editor ed = everything();
    ed.ProjectTitle = "<b>&\"\x01\xFF" + std::string(100000, 'x');
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(fileOf(ed, PictureFormat::svg))).isValid());
    ed.sceneWidth = ed.sceneHeight = 0;
    for (const PictureFormat format : {PictureFormat::png, PictureFormat::svg, PictureFormat::pdf})
        EXPECT_FALSE(fileOf(ed, format).empty());
    ed.sceneWidth = 2'000'000'000;
    Subject huge(ed);
    EXPECT_EQ(pictureFile(huge, PictureFormat::png, {}).problem, "So large a picture cannot be made.");
}

}  // namespace
}  // namespace zentrik
