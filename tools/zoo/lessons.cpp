// The lessons, each of which shows one thing. Their names begin with a digit, which puts them first in the
// project list; their titles say what to do and what happens.

#include "model/store.h"
#include "zoo/creatures.h"
#include "zoo/kit.h"
#include "zoo/zoo.h"

#include <cmath>
#include <numbers>

namespace zentrik::zoo {

Editor welcome() {
    Editor ed = project("Press the green triangle to start. Then choose \"1 a ball\" in the list above",
                        {.gravity = 0.25F,
                         .friction = 0.9F,
                         .viscosity = 0.1F,
                         .bounce = 0.1F,
                         .deltaAngle = 2.6F,
                         .wind = 0.1F});
    const std::int32_t stripes[] = {coral, snow, navy};
    addFlag(ed, 400, 600, stripes, {0.3F, 6, 0, 4, 8, 190});
    const Numbers rim = spokedWheel(ed, 12900, 1200, 700, teal, 1);
    for (std::size_t m = 0; m < rim.size(); m += 4) nodeAt(ed, rim[m]).color = amber;
    const std::int32_t hub = rim[0] - 1;
    for (const int foot : {-500, 500}) join(ed, pin(ed, 12900 + foot, 2950), hub, 5);
    addWalker(ed, 3700, 1750);
    // On a leash, so that it comes to no wall and can go on for ever.
    const std::int32_t tail = lastNode(ed);
    join(ed, pin(ed, 2930, 2950), tail, 0.6F);
    return ed;
}

// They come to rest: that is the lesson.
Editor fallingBall() {
    Editor ed = project("Press start: a ball bounces lower each time, then slides to rest. Try B and F",
                        {.gravity = 0.4F, .friction = 0.04F, .bounce = 0.92F});
    const std::int32_t colors[] = {coral, amber, teal};
    for (int m = 0; m < 3; ++m) {
        const std::int32_t n = ball(ed, 700 + 500 * m, 600 + 700 * m, colors[m]);
        dress(ed, n, "ball.svg");
        launch(ed, n, 0, 1500 + 700 * m);
    }
    return ed;
}

// The steps damp an oscillation of frequency w as a drag of dt w^2 / 2 would; the Viscosity below zero gives
// just that back to springs of this constant, whatever hangs on them.
Editor spring() {
    const float k = 0.5F;
    Editor ed = project("A heavier ball stretches its spring more, and takes longer to go up and down",
                        {.gravity = 0.55F, .viscosity = -0.05F * k});
    for (int mass = 1; mass <= 5; ++mass) {
        const double x = 1400 + 2800 * (mass - 1);
        const std::int32_t hung = ball(ed, x, 1050, rainbow[2 * mass - 2], static_cast<float>(mass));
        join(ed, pin(ed, x, 450), hung, k);
    }
    return ed;
}

Editor chainAndTruss() {
    Editor ed = project("A chain gives way to every shake, but triangles make a truss stiff. Try W and V",
                        {.gravity = 0.6F, .viscosity = 0.02F, .deltaAngle = 2.6F});
    Numbers links{rocker(ed, 3800, 550, 170, 0)};
    for (int m = 1; m <= 9; ++m) links.push_back(ball(ed, 3800, 550 + 220 * m, rainbow[m % 9]));
    chain(ed, links, 15);

    const std::int32_t hook = rocker(ed, 10200, 550, 170, 0);
    const Numbers left = row(ed, 9950, 850, 9950, 2500, 6, navy),
                  right = row(ed, 10450, 850, 10450, 2500, 6, sky);
    chain(ed, left, 15);
    chain(ed, right, 15);
    brace(ed, left, right, 15);
    join(ed, hook, left[0], 15);
    join(ed, hook, right[0], 15);
    return ed;
}

// Upper arm and elbow stand still, so that the forearm's weight shows what the muscle does.
Editor muscle() {
    Editor ed = project("A muscle is a link that changes its length: the more F, the wider the swing",
                        {.gravity = 0.1F, .viscosity = 0.05F, .deltaAngle = 2});
    for (int m = 0; m < 4; ++m) {
        const double x = 1200 + 3300 * m;
        const std::int32_t shoulder = pin(ed, x, 600), elbow = pin(ed, x, 2300);
        const std::int32_t hand = ball(ed, x + 1500, 2300, rainbow[2 * m], 2);
        join(ed, shoulder, elbow, 5);
        join(ed, elbow, hand, 20);
        drive(ed, join(ed, shoulder, hand, 20), 0, 0.08 + 0.08 * m);
    }
    return ed;
}

Editor twoMuscles() {
    Editor ed = project("Two muscles in step lift a foot; a quarter turn apart they walk it round. Try A",
                        {.gravity = 0, .viscosity = 0.05F, .deltaAngle = 2.5F});
    for (int m = 0; m < 4; ++m) {
        const double x = 1900 + 3500 * m;
        const std::int32_t left = pin(ed, x - 800, 700), right = pin(ed, x + 800, 700);
        const std::int32_t foot = ball(ed, x, 1900, rainbow[2 * m]);
        join(ed, left, right, 5);
        drive(ed, join(ed, left, foot, 20), 0, 0.22);
        drive(ed, join(ed, right, foot, 20), 90 * m, 0.22);
    }
    return ed;
}

Editor rollingWheel() {
    Editor ed =
        project("Spokes lengthen in turn, so the wheel rolls. Structures builds such rings",
                {.gravity = 0.5F, .friction = 0.5F, .viscosity = 0.05F, .bounce = 0.1F, .deltaAngle = 1.1F});
    addWheel(ed, 2200, 1900, 950, coral, 25);
    return ed;
}

Editor firstWalker() {
    Editor ed =
        project("Two muscles swing each foot, and it walks. Build one: the manual says how",
                {.gravity = 0.5F, .friction = 0.9F, .viscosity = 0.2F, .bounce = 0.1F, .deltaAngle = 3});
    addBench(ed, 1500, 1500);
    return ed;
}

Editor cannon() {
    Editor ed = project("Start, click the red square, press Ctrl+F. Uncheck Ignore Barriers: walls hold",
                        {.gravity = 0.4F, .friction = 0.02F, .bounce = 0.005F, .deltaAngle = 2});
    // With so little bounce a ball stays where it lands; one that trembled would slip through the barrier.
    const std::int32_t gun = pin(ed, 1300, 2300, coral), trigger = pin(ed, 800, 2650, stone);
    join(ed, gun, trigger, 5);
    nodeAt(ed, gun).Trigger = trigger;
    barrier(ed, 9000, 2880, 12600, 2880);
    barrier(ed, 9000, 1900, 9000, 2880);
    barrier(ed, 12600, 1200, 12600, 2880);
    const std::int32_t hook = rocker(ed, 6500, 550, 170, 0);
    Numbers rope{hook};
    for (int m = 1; m <= 4; ++m)
        rope.push_back(ball(ed, 6500, 550 + 300 * m, m == 4 ? coral : stone, m == 4 ? 3.0F : 1.0F));
    chain(ed, rope, 12);
    dress(ed, rope.back(), "target.svg");
    return ed;
}

}  // namespace zentrik::zoo
