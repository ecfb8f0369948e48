#include "display/sprites.h"

#include "display/scene.h"
#include "scenes/scenes.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace zentrik {
namespace {

class Sprites : public testing::Test {
protected:
    QTemporaryDir folder;

    void write(const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void writePicture(const char* name, int width, int height, QColor color) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(color);
        ASSERT_TRUE(image.save(folder.filePath(name)));
    }
    std::vector<std::string> read(SpritePictures& sprites) {
        return sprites.read(folder.path().toStdString());
    }
};

constexpr const char* greenSquare =
    "<svg xmlns='http://www.w3.org/2000/svg' width='20' height='10'>"
    "<rect width='20' height='10' fill='#00ff00'/></svg>";

TEST_F(Sprites, UnreadableFilesAreSkippedAndNamesKeepStep) {
    writePicture("b.png", 4, 6, Qt::red);
    writePicture("d.bmp", 8, 8, Qt::blue);
    writePicture("e.jpg", 5, 5, Qt::white);
    writePicture("g-wide.png", 5000, 1, Qt::white);
    write("a.txt", "no picture");
    write("c.png", "no picture either");
    write("empty.gif", "");
    write("f.svg", greenSquare);
    write("f-broken.svg", "<svg");
    write("f-huge.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='1e9' height='1e9'/>");
    write("f-nothing.svg", "<svg xmlns='http://www.w3.org/2000/svg' width='0' height='0'/>");
    write("one-pixel.gif", QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAP8AACwAAAAAAQABAAACAkQBADs="));
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder.png"));

    SpritePictures sprites;
    EXPECT_EQ(read(sprites), (std::vector<std::string>{"a.txt", "c.png", "empty.gif", "f-broken.svg",
                                                       "f-huge.svg", "f-nothing.svg", "g-wide.png"}));
    EXPECT_EQ(sprites.names(),
              (std::vector<std::string>{"<none>", "b.png", "d.bmp", "e.jpg", "f.svg", "one-pixel.gif"}));
    EXPECT_TRUE(sprites.picture(0).isNull());
    EXPECT_EQ(sprites.picture(1).size(), QSize(4, 6));
    EXPECT_EQ(sprites.picture(4).pixelColor(10, 5), QColor(Qt::green));
    SpritePictures none;
    EXPECT_TRUE(none.read("no such folder").empty());
    EXPECT_EQ(none.names(), std::vector<std::string>{"<none>"});
}

TEST_F(Sprites, ReadAgainKnownOnesKeepTheirNumber) {
    writePicture("b.png", 4, 6, Qt::red);
    write("c.txt", "no picture");
    SpritePictures sprites;
    read(sprites);
    writePicture("a.png", 8, 8, Qt::blue);
    write("d.txt", "no picture");
    EXPECT_EQ(read(sprites), std::vector<std::string>{"d.txt"}) << "told once";
    EXPECT_EQ(sprites.names(), (std::vector<std::string>{"<none>", "b.png", "a.png"}));
    EXPECT_EQ(sprites.picture(2).size(), QSize(8, 8));
    EXPECT_EQ(sprites.picture(2).devicePixelRatio(), 1);
    sprites.setRatio(2);
    EXPECT_EQ(sprites.picture(2).devicePixelRatio(), 2) << "on another screen";
    EXPECT_FALSE(sprites.picture(1).isNull());
    ASSERT_TRUE(QFile::remove(folder.filePath("b.png")));
    read(sprites);
    EXPECT_TRUE(sprites.picture(1).isNull()) << "gone";
    EXPECT_EQ(sprites.names().size(), 3U);
}

TEST_F(Sprites, TakeBoundedRoomTogether) {
    QImage large(2048, 2048, QImage::Format_RGB32);
    large.fill(Qt::red);
    ASSERT_TRUE(large.save(folder.filePath("0.png")));
    for (int i = 1; i < 20; ++i)
        QFile::copy(folder.filePath("0.png"), folder.filePath(QString("%1.png").arg(i)));
    SpritePictures sprites;
    read(sprites);
    EXPECT_EQ(sprites.roomTaken(), 0) << "nothing is decoded before it is shown";
    for (std::size_t number = 1; number <= 20; ++number) ASSERT_FALSE(sprites.picture(number).isNull());
    EXPECT_LE(sprites.roomTaken(), SpritePictures::roomInKilobytes);
    EXPECT_GE(sprites.roomTaken(), SpritePictures::roomInKilobytes / 2);
    sprites.setRatio(3);
    EXPECT_EQ(sprites.picture(1).deviceIndependentSize(), QSizeF(2048, 2048));
    EXPECT_LE(sprites.roomTaken(), SpritePictures::roomInKilobytes);
}

TEST_F(Sprites, StandCentredOnTheirNodesAtTheirOwnSize) {
    write("a.svg", greenSquare);
    writePicture("b.png", 30, 30, Qt::red);
    Editor ed;
    ed.sceneWidth = ed.sceneHeight = 3000;
    ed.buttons.ball = false;
    scenes::addNodes(ed, {{750, 1500}, {1500, 1500}, {2250, 1500}, {-2000000000, 2000000000}, {1500, 2500}});
    const std::int32_t entries[] = {0, 1, 2, 77, 1, -1};  // 77: the list has grown shorter
    for (std::size_t i = 1; i <= 5; ++i) ed.Nodes[i].SpriteIndex = entries[i];

    // Pictures loaded for another ratio keep their size, too.
    for (const double ratio : {1.0, 2.0})
        for (const double loadedFor : {1.0, 2.0}) {
            QImage image(QSize(200, 200) * ratio, QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            SpritePictures sprites;
            sprites.setRatio(loadedFor);
            read(sprites);
            const auto at = [&](double x, double y) {
                return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
            };
            const auto draw = [&](bool allowed, bool running, bool button) {
                ed.marks.mnuAllowSprites = allowed;
                ed.drawnRunning = running;
                ed.buttons.sprite = button;
                QPainter painter(&image);
                drawScene(painter, ed, sprites);
                return at(100, 100) == QColor(Qt::red);
            };
            EXPECT_FALSE(draw(false, false, true));
            EXPECT_TRUE(draw(false, true, true));
            EXPECT_FALSE(draw(true, true, false));
            EXPECT_TRUE(draw(true, false, true));
            EXPECT_EQ(at(50 - 9, 100 - 4), QColor(Qt::green));
            EXPECT_EQ(at(50 + 8.5, 100 + 3.5), QColor(Qt::green));
            EXPECT_EQ(at(50 - 12, 100), QColor(Qt::white));
            EXPECT_EQ(at(50, 100 - 7), QColor(Qt::white));
            EXPECT_EQ(at(100 + 13, 100 - 13), QColor(Qt::red));
            EXPECT_EQ(at(150, 100), QColor(Qt::white));
        }
}

}  // namespace
}  // namespace zentrik
