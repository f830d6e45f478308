#include "kavoColorSpace.h"

#include <algorithm>
#include <cmath>

namespace kavoColorSpace {

namespace {

// Returns 0 to 6, from red over green and blue back to red.
double hueSector(const kavoRgbColor &color, double largest, double range)
{
    if (largest == color.red)
        return (color.green - color.blue) / range + (color.green < color.blue ? 6 : 0);
    if (largest == color.green)
        return (color.blue - color.red) / range + 2;
    return (color.red - color.green) / range + 4;
}

} // namespace

kavoHsvColor toHsv(const kavoRgbColor &color, double hueOfGrey)
{
    const auto [smallest, largest] = std::minmax({ color.red, color.green, color.blue });
    const double range = largest - smallest;
    const double hue = range > 0 ? 60 * hueSector(color, largest, range) : hueOfGrey;
    return { hue, largest != 0 ? range / largest : 0, largest };
}

kavoRgbColor toRgb(const kavoHsvColor &color)
{
    const auto component = [&color](double sector) {
        const double position = std::fmod(sector + color.hue / 60, 6);
        const double share = std::clamp(std::min(position, 4 - position), 0.0, 1.0);
        return color.value * (1 - color.saturation * share);
    };
    return { component(5), component(3), component(1) };
}

QColor toScreen(const kavoRgbColor &color)
{
    const auto clamped = [](double component) { return std::clamp(component, 0.0, 1.0); };
    return QColor::fromRgbF(clamped(color.red), clamped(color.green), clamped(color.blue));
}

QColor toScreen(const kavoHsvColor &color)
{
    return toScreen(toRgb(color));
}

kavoRgbColor fromScreen(const QColor &color)
{
    return { color.redF(), color.greenF(), color.blueF() };
}

} // namespace kavoColorSpace
