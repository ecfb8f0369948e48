#include "export/picture.h"

#include "basics/units.h"
#include "display/scene.h"

#include <algorithm>

namespace zentrik {

namespace {

// Beyond what the largest scale makes too large it makes no difference.
constexpr int largestScene = 1 << 20;

Drawing drawingOf(const Subject& subject, const Look& look) {
    const Ground ground = look.transparent ? Ground::clear : Ground::painted;
    return {
        sceneSize(subject.ed), titleOf(subject.ed), colourOf(subject.ed.BackColor),
        [&subject, ground](QPainter& painter) { drawScene(painter, subject.ed, subject.sprites, ground); }};
}

}  // namespace

QString titleOf(const Editor& ed) {
    QString title = QString::fromStdString(ed.ProjectTitle).left(1000);
    title.removeIf([](QChar c) { return c < u' ' || c.isNonCharacter() || c.isSurrogate(); });
    return title;
}

QSize sceneSize(const Editor& ed) {
    const auto extent = [](std::int32_t twips) { return std::clamp(pixels(twips), 1, largestScene); };
    return {extent(ed.sceneWidth), extent(ed.sceneHeight)};
}

QImage sceneImage(const Subject& subject, const Look& look) {
    return imageOf(drawingOf(subject, look), look);
}

// A sprite that stands among shapes is to be sharp when they are enlarged.
PictureFile pictureFile(Subject& subject, const PictureFormatRow& format, const Look& look) {
    subject.sprites.setRatio(format.keepsShapes ? 4 : look.scale);
    return format.make(drawingOf(subject, look), look);
}

}  // namespace zentrik
