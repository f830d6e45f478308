#include "kavoRealText.h"

#include <array>
#include <cfloat>
#include <charconv>
#include <cmath>

namespace {

// A Real32 shows its own digits: 0.1, not 0.10000000149011612.
double shortestDecimal(double value)
{
    if (std::abs(value) > FLT_MAX)
        return value;
    const auto narrow = static_cast<float>(value);
    if (narrow != value)
        return value;
    std::array<char, 32> text;
    const char *end = std::to_chars(text.begin(), text.end(), narrow).ptr;
    std::from_chars(text.begin(), end, value);
    return value;
}

} // namespace

QString kavoRealText(double value, const QLocale &locale)
{
    QLocale ungrouped = locale;
    ungrouped.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return ungrouped.toString(shortestDecimal(value), 'g', QLocale::FloatingPointShortest);
}
