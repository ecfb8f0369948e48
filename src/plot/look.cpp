#include "plot/look.h"

#include <iterator>

namespace zentrik {

namespace {

constexpr PlotLook light{false, 0xFFFFFF, 0x302820, 0x70665C, 0xE6E2DE, 0xB0A89E};
constexpr PlotLook dark{true, 0x2A2420, 0xF0ECE8, 0xB8B0A8, 0x453E38, 0x8A8078};

// After Okabe and Ito, "Color Universal Design"; darker on white and lighter on black where lines are thin.
struct Hue {
    QRgb onLight, onDark;
};
constexpr Hue hues[] = {{0xFF0072B2, 0xFF56B4E9}, {0xFFD55E00, 0xFFFF8C42}, {0xFF00805C, 0xFF2FD3A4},
                        {0xFFB5458A, 0xFFF2A7D0}, {0xFF8F6A00, 0xFFEFD23A}, {0xFF202020, 0xFFF5F5F5}};
constexpr Qt::PenStyle strokes[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine};

}  // namespace

const PlotLook& lookOf(bool isDark) { return isDark ? dark : light; }

// The curves count from 1.
QPen PlotLook::pen(std::size_t curve, double ratio) const {
    const Hue& hue = hues[(curve - 1) % std::size(hues)];
    const Qt::PenStyle stroke = strokes[(curve - 1) / std::size(hues) % std::size(strokes)];
    return QPen(QColor(dark ? hue.onDark : hue.onLight), 1.5 * ratio, stroke, Qt::FlatCap, Qt::BevelJoin);
}

std::string numberText(double value) {
    return QString::number(value == 0 ? 0 : value, 'g', 5).toStdString();  // never -0
}

}  // namespace zentrik
