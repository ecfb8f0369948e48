#pragma once
#include "export/films/film_writer.h"
#include "files/new_folder.h"

namespace zentrik {

// A new folder with the pictures 0001.png, 0002.png and so on.
class NumberedWriter : public FilmWriter {
public:
    NumberedWriter(std::string path, const Editor& ed, const FilmPlan& plan);

    std::string take(const Subject& subject) override;
    std::string finish() override { return folder_.finish(); }
    double expectedSize(double part) const override { return size_ / part; }

private:
    NewFolder folder_;
    const FilmPlan plan_;
    const std::size_t digits_;
    std::int64_t taken_ = 0;
    double size_ = 0;  // of what is taken, bytes
};

}  // namespace zentrik
