#include <OpenSG/OSGColor.h>

OSG_BEGIN_NAMESPACE

namespace ColorSpace {

namespace {

constexpr Real32 sector = 60.f;
constexpr Real32 fullCircle = 360.f;

// The dominant primary selects the sector: 0 for red, 2 for green, 4 for blue.
Real32 hueOf(const Real32 rgb[3], UInt32 dominant, Real32 range)
{
    if (range <= 0) {
        return 0;
    }
    const Real32 offset = (rgb[(dominant + 1) % 3] - rgb[(dominant + 2) % 3]) / range;
    const Real32 hue = (2 * dominant + offset) * sector;
    return hue < 0 ? hue + fullCircle : hue;
}

} // namespace

void rgbToHsv(const Real32 rgb[3], Real32 &hue, Real32 &saturation, Real32 &value)
{
    const Real32 *highest = std::max_element(rgb, rgb + 3);
    const Real32 range = *highest - *std::min_element(rgb, rgb + 3);
    hue = hueOf(rgb, static_cast<UInt32>(highest - rgb), range);
    saturation = *highest > 0 ? range / *highest : 0;
    value = *highest;
}

void hsvToRgb(Real32 hue, Real32 saturation, Real32 value, Real32 rgb[3])
{
    for (int i = 0; i < 3; ++i) {
        const Real32 turned = std::fmod(5.f - 2.f * i + hue / sector, 6.f);
        const Real32 weight = std::clamp(std::min(turned, 4.f - turned), 0.f, 1.f);
        rgb[i] = value * (1 - saturation * weight);
    }
}

} // namespace ColorSpace

OSG_END_NAMESPACE
