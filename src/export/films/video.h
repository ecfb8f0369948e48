#pragma once
#include "export/films/film_writer.h"

#include <QProcess>
#include <QTemporaryDir>

namespace zentrik {

// Hands the pictures to the program ffmpeg, which makes the video aside.
class VideoWriter : public FilmWriter {
public:
    enum class Kind { mp4, webm };
    VideoWriter(Kind kind, std::string path, const FilmPlan& plan);
    ~VideoWriter() override;

    std::string take(const Subject& subject) override;
    std::string finish() override;
    double expectedSize(double) const override { return 0; }  // the encoder keeps most pictures to itself

private:
    const Kind kind_;
    const std::string path_;
    const FilmPlan plan_;
    QTemporaryDir aside_;
    QProcess encoder_;

    QString asidePath() const { return aside_.filePath(kind_ == Kind::mp4 ? "film.mp4" : "film.webm"); }
    std::string start(QSize size);
    QStringList arguments(QSize size) const;
    std::string encoderProblem();
};

class Mp4Writer : public VideoWriter {
public:
    Mp4Writer(std::string path, const Editor&, const FilmPlan& plan)
        : VideoWriter(Kind::mp4, std::move(path), plan) {}
};

class WebmWriter : public VideoWriter {
public:
    WebmWriter(std::string path, const Editor&, const FilmPlan& plan)
        : VideoWriter(Kind::webm, std::move(path), plan) {}
};

}  // namespace zentrik
