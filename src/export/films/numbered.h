#pragma once
#include "export/films/film_writer.h"

namespace zentrik {

// A new folder with the pictures 0001.png, 0002.png and so on.
class NumberedWriter : public FilmWriter {
public:
    NumberedWriter(std::string path, const Editor& ed, const FilmPlan& plan);
    ~NumberedWriter() override;

    std::string take(const Subject& subject) override;
    std::string finish() override;
    double expectedSize(double part) const override { return size_ / part; }

private:
    const std::string path_, aside_;  // the latter while it grows
    const FilmPlan plan_;
    const std::size_t digits_;
    std::int64_t taken_ = 0;
    double size_ = 0;  // of what is taken, bytes

    std::string makeFolder() const;
};

}  // namespace zentrik
