#include "export/films/video.h"

#include "files/write_file.h"

#include <QFile>
#include <QStandardPaths>
#include <algorithm>

namespace zentrik {

namespace {

constexpr int patience = 60000;  // milliseconds in which the encoder must take something in

// Most players show only even sizes: the last column and row are shown twice.
QImage evenSized(const QImage& image) {
    const QSize even((image.width() + 1) / 2 * 2, (image.height() + 1) / 2 * 2);
    if (even == image.size()) return image;
    QImage larger(even, image.format());
    for (int y = 0; y < even.height(); ++y) {
        const auto* from =
            reinterpret_cast<const QRgb*>(image.constScanLine(std::min(y, image.height() - 1)));
        auto* to = reinterpret_cast<QRgb*>(larger.scanLine(y));
        std::copy_n(from, image.width(), to);
        to[even.width() - 1] = from[image.width() - 1];
    }
    return larger;
}

}  // namespace

VideoWriter::VideoWriter(Kind kind, std::string path, const FilmPlan& plan)
    : kind_(kind), path_(std::move(path)), plan_(plan) {}

VideoWriter::~VideoWriter() {
    if (encoder_.state() == QProcess::NotRunning) return;
    encoder_.kill();
    encoder_.waitForFinished();
}

QStringList VideoWriter::arguments(QSize size) const {
    const bool clear = plan_.look.transparent && kind_ == Kind::webm;
    const QStringList in{"-f",       "rawvideo",
                         "-pix_fmt", clear ? "bgra" : "bgr0",
                         "-s",       QString("%1x%2").arg(size.width()).arg(size.height()),
                         "-r",       QString::number(plan_.rate),
                         "-i",       "-"};
    const QStringList mp4{"-c:v", "libx264", "-crf", "18", "-pix_fmt", "yuv420p", "-movflags", "+faststart"};
    const QStringList webm{"-c:v",      "libvpx-vp9", "-crf",     "24",
                           "-b:v",      "0",          "-row-mt",  "1",
                           "-cpu-used", "4",          "-pix_fmt", clear ? "yuva420p" : "yuv420p"};
    // Without names and dates of its own, so that the same film is the same bytes.
    return QStringList{"-nostdin", "-loglevel", "error", "-y"} + in + QStringList{"-an"} +
           (kind_ == Kind::mp4 ? mp4 : webm) + QStringList{"-fflags", "+bitexact", "-flags:v", "+bitexact"} +
           QStringList{"-map_metadata", "-1", asidePath()};
}

std::string VideoWriter::start(QSize size) {
    const QString program = QStandardPaths::findExecutable("ffmpeg");
    if (program.isEmpty())
        return "Videos are made by the program ffmpeg, which is not installed. Its package is called ffmpeg.";
    if (!aside_.isValid()) return aside_.errorString().toStdString() + ".";
    encoder_.setStandardOutputFile(QProcess::nullDevice());
    encoder_.start(program, arguments(size));
    return encoder_.waitForStarted(patience) ? "" : encoderProblem();
}

// The last line of what it says.
std::string VideoWriter::encoderProblem() {
    encoder_.waitForFinished(patience);
    const QString said = QString::fromLocal8Bit(encoder_.readAllStandardError()).trimmed();
    return "ffmpeg: " + (said.isEmpty() ? encoder_.errorString() : said.section('\n', -1)).toStdString();
}

std::string VideoWriter::take(const Subject& subject) {
    Look look = plan_.look;
    look.transparent = look.transparent && kind_ == Kind::webm;
    QImage image = sceneImage(subject, look);
    if (image.isNull()) return "So large a picture cannot be made.";
    if (look.transparent) image.convertTo(QImage::Format_ARGB32);
    image = evenSized(image);
    if (encoder_.state() == QProcess::NotRunning)
        if (std::string problem = start(image.size()); !problem.empty()) return problem;
    encoder_.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
    while (encoder_.bytesToWrite() > 0)
        if (!encoder_.waitForBytesWritten(patience)) return encoderProblem();
    return {};
}

std::string VideoWriter::finish() {
    encoder_.closeWriteChannel();
    while (encoder_.state() != QProcess::NotRunning)
        if (!encoder_.waitForFinished(patience) && encoder_.error() != QProcess::Timedout) break;
    if (encoder_.exitStatus() != QProcess::NormalExit || encoder_.exitCode() != 0) return encoderProblem();
    QFile made(asidePath());
    if (!made.open(QIODevice::ReadOnly)) return made.errorString().toStdString() + ".";
    const QByteArray bytes = made.readAll();
    if (bytes.size() != made.size()) return "It was cut off.";
    return writeFile(path_, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace zentrik
