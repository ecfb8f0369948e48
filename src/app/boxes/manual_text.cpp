#include "app/boxes/manual_text.h"

#include <QDesktopServices>
#include <QFile>
#include <QImageReader>
#include <QMovie>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <algorithm>
#include <vector>

namespace zentrik {

namespace {

constexpr double besideText = 0.4;  // of the width, for a picture in a table
constexpr int rest = 100;           // milliseconds

QString manualMarkdown() {
    QFile file(":/docs/manual.md");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// How a link names a chapter: the words of its heading in lower case, joined by hyphens; or so the bold words
// that a paragraph begins with.
QString linkName(const QTextBlock& block) {
    if (block.begin().atEnd()) return {};
    const QTextFragment first = block.begin().fragment();
    if (block.blockFormat().headingLevel() == 0 && first.charFormat().fontWeight() < QFont::Bold) return {};
    static const QRegularExpression others("[^a-z0-9 -]");
    return first.text().toLower().remove(others).replace(' ', '-');
}

std::vector<QTextFragment> picturesOf(const QTextDocument& text) {
    std::vector<QTextFragment> pictures;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (auto at = block.begin(); !at.atEnd(); ++at)
            if (at.fragment().charFormat().isImageFormat()) pictures.push_back(at.fragment());
    return pictures;
}

}  // namespace

ManualText::ManualText(QWidget* parent) : QTextBrowser(parent) {
    document()->setBaseUrl(QUrl("qrc:/docs/"));
    setSearchPaths({":/docs"});
    setMarkdown(manualMarkdown());
    drawTables();
    playFilms();
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the pictures are fitted beside it
    setOpenLinks(false);
    resting_.setSingleShot(true);
    connect(&resting_, &QTimer::timeout, this, &ManualText::scalePictures);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) { followLink(link); });
}

void ManualText::drawTables() {
    for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(palette().mid());
        format.setCellPadding(4);
        format.setTopMargin(4);
        format.setBottomMargin(8);
        table->setFormat(format);
    }
}

void ManualText::playFilms() {
    for (const QTextFragment& place : picturesOf(*document())) {
        const QString name = place.charFormat().toImageFormat().name();
        if (!name.endsWith(".gif")) continue;
        auto* film = new QMovie(":/docs/" + name, {}, this);
        connect(film, &QMovie::frameChanged, this,
                [this, film, name] { showPicture(name, film->currentImage()); });
        film->start();
    }
}

void ManualText::goTo(int position) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    setTextCursor(cursor);  // from below, so that the chapter comes to the top
    cursor.setPosition(position);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top());
}

void ManualText::resizeEvent(QResizeEvent* event) {
    fitPictures();
    resting_.start(rest);
    QTextBrowser::resizeEvent(event);
}

void ManualText::paintEvent(QPaintEvent* event) {
    if (ratio_ != devicePixelRatioF()) resting_.start(0);
    QTextBrowser::paintEvent(event);
}

void ManualText::fitPictures() {
    const double room = viewport()->width() - 2 * document()->documentMargin();
    QTextCursor cursor(document());
    for (const QTextFragment& place : picturesOf(*document())) {
        QTextImageFormat format = place.charFormat().toImageFormat();
        const QSize natural = QImageReader(":/docs/" + format.name()).size();
        cursor.setPosition(place.position());
        const double part = cursor.currentTable() != nullptr ? besideText : 1;
        const double width = std::min(natural.width() * 1.0, room * part);
        if (natural.isEmpty() || format.width() == width) continue;
        const QSizeF size(width, width * natural.height() / natural.width());
        sizes_[format.name()] = size;
        format.setWidth(size.width());
        format.setHeight(size.height());
        cursor.setPosition(place.position() + place.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(format);
    }
}

int ManualText::wholePicturesWidth() const {
    int widest = 0;
    for (const QTextFragment& place : picturesOf(*document()))
        widest = std::max(widest,
                          QImageReader(":/docs/" + place.charFormat().toImageFormat().name()).size().width());
    const int around = 2 * static_cast<int>(document()->documentMargin()) + 2 * frameWidth();
    return widest + around + verticalScrollBar()->sizeHint().width();
}

void ManualText::scalePictures() {
    ratio_ = devicePixelRatioF();
    for (auto it = sizes_.cbegin(); it != sizes_.cend(); ++it)
        if (!it.key().endsWith(".gif")) showPicture(it.key(), QImage(":/docs/" + it.key()));
}

// The text's painter leaves out pixels when it makes a picture smaller, and with them thin lines.
void ManualText::showPicture(const QString& name, const QImage& picture) {
    QImage scaled = picture.scaled((sizes_.value(name, picture.size()) * devicePixelRatioF()).toSize(),
                                   Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatioF());
    document()->addResource(QTextDocument::ImageResource, document()->baseUrl().resolved(name),
                            QPixmap::fromImage(scaled));
    viewport()->update();
}

void ManualText::followLink(const QUrl& link) {
    if (!link.scheme().isEmpty()) {
        QDesktopServices::openUrl(link);
        return;
    }
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        if (linkName(block) == link.fragment()) return goTo(block.position());
}

}  // namespace zentrik
