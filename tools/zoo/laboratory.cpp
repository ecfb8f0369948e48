// What can be measured by the plot and worked out by hand.

#include "zoo/kit.h"
#include "zoo/zoo.h"

namespace zentrik::zoo {

// Each height is B x B = 0.81 of the one before. Short steps, since it turns back at the step after the
// contact.
Editor bouncer() {
    Editor ed = project("Select the ball and plot it (Ctrl+Shift+G): each height is B x B of the last",
                        {.gravity = 0.5F, .friction = 0, .bounce = 0.9F, .timeInterval = 2});
    dress(ed, ball(ed, 7000, 500, coral), "ball.svg");
    return ed;
}

// Periods of 2 pi sqrt(m / (100 k)): 0.628, 1.257 and 1.885. The Viscosity gives back what the steps take, as
// in the lesson of the spring.
Editor oscillators() {
    const float k = 1;
    Editor ed = project("Plot the heights: four times the mass, twice the period; nine times, thrice",
                        {.gravity = 0.5F, .viscosity = -0.05F * k});
    constexpr struct {
        float mass;
        std::int32_t color;
    } hung[] = {{1, amber}, {4, coral}, {9, plum}};
    double x = 3500;
    for (const auto& [mass, color] : hung) {
        const std::int32_t ballNumber = ball(ed, x, 1250, color, mass);
        join(ed, pin(ed, x, 450), ballNumber, k);
        x += 3500;
    }
    return ed;
}

}  // namespace zentrik::zoo
