#include "edit/phase_mouse.h"

#include "basics/numbers.h"
#include "edit/hit.h"
#include "edit/mouse.h"
#include "model/phase_axis.h"
#include "model/readout.h"
#include "model/redraw.h"
#include "model/store.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace zentrik {

namespace {

constexpr double phaseGrid = 22.5;  // degrees

void redrawBoth(Editor& ed) {
    DrawPhaseManager(ed, ed.AnimationTime);
    redrawScene(ed);
}

bool within(float at, std::int32_t centre, std::int32_t radius) {
    return static_cast<double>(centre) - radius < at && at < static_cast<double>(centre) + radius;
}

void pick(Editor& ed, float X, float Y) {
    std::int32_t link = none;
    ed.PhaseDragging = OverPhase(ed, X, Y, link);
    if (!ed.PhaseDragging) {
        ed.SelectedAnimatorLink = ed.SelectedLink;
        return;
    }
    ed.SelectedAnimatorLink = ed.SelectedLink = link;
    DisplayLinkData(ed, link);
}

}  // namespace

bool OverPhase(Editor& ed, float X, float Y, std::int32_t& iOver) {
    iOver = none;
    for (std::int32_t j = 1; j <= lastLink(ed); ++j) {
        const Link& link = linkAt(ed, j);
        if (!link.Used || !within(X, link.DiscX, ed.HitRadius) || !within(Y, link.DiscY, ed.HitRadius))
            continue;
        iOver = j;
        panel(ed, 5) = linkText(ed, j);
        return true;
    }
    return false;
}

float SnapToPhaseGrid(const Editor& ed, float X) {
    const double axis = phaseAxisLength * ed.phaseWidth;
    const double offset = X - phaseAxisLeft * ed.phaseWidth;
    double angle = axis > 0 ? offset / axis * 360 : 0;
    constexpr double step = phaseGrid;
    const double cell = step / 360 * axis;
    const std::int32_t c = toInt(cell);
    if (ed.buttons.snap && c > 0) {
        const std::int32_t n = toInt(offset);
        angle = (n % c < cell / 2 ? n / c : n / c + 1) * step;
    }
    return toReal(std::clamp(angle, 0.0, 360.0));
}

void picPhase_MouseDown(Editor& ed, int Button, float X, float Y) {
    if (Button == leftButton) {
        pick(ed, X, Y);
    } else if (Button == rightButton) {
        ed.PhaseDragging = false;
        ed.PhaseOverLink = ed.SelectedAnimatorLink = ed.SelectedLink = none;
    } else {
        return;
    }
    redrawBoth(ed);
}

void picPhase_MouseMove(Editor& ed, float X, float Y) {
    if (ed.PhaseDragging && linkExists(ed, ed.SelectedAnimatorLink)) {
        linkAt(ed, ed.SelectedAnimatorLink).Angle = SnapToPhaseGrid(ed, X);
    } else {
        const bool over = OverPhase(ed, X, Y, ed.PhaseOverLink);
        panel(ed, 5) = over ? "Link: " + std::to_string(ed.PhaseOverLink) : "";
    }
    redrawBoth(ed);
}

void picPhase_MouseUp(Editor& ed) { ed.PhaseDragging = false; }

void picPhase_DblClick(Editor& ed) {
    if (ed.SelectedAnimatorLink == none) return;
    if (linkExists(ed, ed.SelectedAnimatorLink)) linkAt(ed, ed.SelectedAnimatorLink).Animator = false;
    ed.SelectedAnimatorLink = none;
    ed.PhaseDragging = false;
    redrawBoth(ed);
    panel(ed, 5).clear();
}

void stepDisc(Editor& ed, int places) {
    std::vector<std::pair<float, std::int32_t>> discs;  // by phase, then number
    forEachLink(ed, [&](std::int32_t j, const Link& link) {
        if (link.Animator) discs.emplace_back(link.Angle, j);
    });
    if (discs.empty()) return;
    std::sort(discs.begin(), discs.end());
    const auto chosen = std::find_if(discs.begin(), discs.end(),
                                     [&](const auto& disc) { return disc.second == ed.SelectedLink; });
    const auto count = static_cast<std::ptrdiff_t>(discs.size());
    const std::ptrdiff_t at = chosen == discs.end() ? (places > 0 ? -1 : count) : chosen - discs.begin();
    const std::ptrdiff_t next = std::clamp<std::ptrdiff_t>(at + places, 0, count - 1);
    ed.SelectedAnimatorLink = ed.SelectedLink = discs[static_cast<std::size_t>(next)].second;
    DisplayLinkData(ed, ed.SelectedLink);
    redrawBoth(ed);
    panel(ed, 5) = linkText(ed, ed.SelectedLink);
}

void turnDisc(Editor& ed, int steps) {
    Link* link = selectedLink(ed);
    if (!link || !link->Animator) return;
    const double step = ed.buttons.snap ? phaseGrid : 5;
    // From one grid line to the next, wherever the disc stands between two.
    const double place = link->Angle / step;
    const double next = (steps > 0 ? std::floor(place + 1e-4) : std::ceil(place - 1e-4)) + steps;
    link->Angle = toReal(std::clamp(next * step, 0.0, 360.0));
    DisplayLinkData(ed, ed.SelectedLink);
    redrawBoth(ed);
    panel(ed, 5) = "Link: " + std::to_string(ed.SelectedLink) + "  Phase: " + realText(link->Angle);
}

}  // namespace zentrik
