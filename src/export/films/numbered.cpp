#include "export/films/numbered.h"

#include <algorithm>

namespace zentrik {

NumberedWriter::NumberedWriter(std::string path, const Editor& ed, const FilmPlan& plan)
    : folder_(std::move(path)),
      plan_(plan),
      digits_(std::max<std::size_t>(4, std::to_string(pictureCount(ed, plan)).size())) {}

std::string NumberedWriter::take(const Subject& subject) {
    if (taken_ == 0)
        if (std::string problem = folder_.make(); !problem.empty()) return problem;
    std::string number = std::to_string(++taken_);
    number.insert(0, digits_ - std::min(digits_, number.size()), '0');
    const std::string bytes = pngBytes(sceneImage(subject, plan_.look));
    if (bytes.empty()) return "So large a picture cannot be made.";
    size_ += static_cast<double>(bytes.size());
    return folder_.write(number + ".png", bytes);
}

}  // namespace zentrik
