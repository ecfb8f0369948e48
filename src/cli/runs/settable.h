#pragma once
// The numbers of a model that a command line can name and change: global settings, and fields of nodes and
// links, as "Gravity", "timer period", "node 4.Mass" or "link 3..9.Angle".

#include "model/editor.h"

#include <string>
#include <vector>

namespace zentrik::cli {

class Settable {
public:
    // Throws a Failure with close names when the model has nothing of that name. Case and blanks do not
    // matter.
    Settable(const Editor& ed, const std::string& name);

    const std::string& name() const { return name_; }
    // The first of the numbers, where it stands for several; a real is the decimal that files have for it.
    double valueIn(const Editor& ed) const;
    // Rounded to what the field holds. Throws a Failure when the field does not take it.
    void setIn(Editor& ed, double value) const;

private:
    enum class Kind { global, node, link };

    std::string name_;
    Kind kind_ = Kind::global;
    std::size_t row_ = 0;                // in the kind's table
    std::vector<std::int32_t> numbers_;  // of nodes or links
};

}  // namespace zentrik::cli
