// Draws SVG files as square PNG files: zentrik_draw_icons SIZE DRAWING.svg PICTURE.png ...

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool draw(int size, const QString& drawing, const QString& picture) {
    QSvgRenderer renderer(drawing);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && QDir().mkpath(QFileInfo(picture).path()) && image.save(picture, "PNG");
}

}  // namespace

int main(int argc, char** argv) {
    const int size = argc > 1 ? QString(argv[1]).toInt() : 0;
    if (size <= 0 || argc % 2 != 0) {
        std::fputs("usage: zentrik_draw_icons SIZE DRAWING.svg PICTURE.png ...\n", stderr);
        return 2;
    }
    for (int i = 2; i < argc; i += 2)
        if (!draw(size, argv[i], argv[i + 1])) {
            std::fprintf(stderr, "%s could not be drawn as %s\n", argv[i], argv[i + 1]);
            return 1;
        }
    return 0;
}
