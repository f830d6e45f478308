#include <OpenSG/OSGReal16.h>

#include <algorithm>
#include <cmath>
#include <limits>

OSG_BEGIN_NAMESPACE

namespace {

constexpr int mantissaBits = 10;
constexpr int exponentBias = 15;
constexpr UInt16 signBit = 0x8000;
constexpr UInt16 infinityBits = 0x7c00;
constexpr UInt16 nanBits = 0x7e00;
constexpr Real32 firstTooLarge = 65520.f;

UInt16 magnitudeBits(Real32 value)
{
    if (std::isnan(value)) {
        return nanBits;
    }
    if (value >= firstTooLarge) {
        return infinityBits;
    }
    int exponent = 0;
    std::frexp(value, &exponent);
    // Numbers below the smallest normal number share one exponent and have fewer digits.
    const int stored = value == 0 ? 0 : std::max(exponent - 1 + exponentBias, 0);
    const int scale = mantissaBits + exponentBias - std::max(stored, 1);
    const auto mantissa = std::lrint(std::ldexp(value, scale));
    // The leading bit of a normal number adds 1 to the stored exponent, so 1 is subtracted here.
    return static_cast<UInt16>(((std::max(stored, 1) - 1) << mantissaBits) + mantissa);
}

} // namespace

Real16::Real16(Real32 value)
    : _bits(
        static_cast<UInt16>(magnitudeBits(std::fabs(value)) | (std::signbit(value) ? signBit : 0)))
{
}

Real16::operator Real32() const
{
    const Real32 sign = (_bits & signBit) ? -1.f : 1.f;
    const int exponent = (_bits & infinityBits) >> mantissaBits;
    const int mantissa = _bits & ((1 << mantissaBits) - 1);
    if (exponent == infinityBits >> mantissaBits) {
        return mantissa ? std::numeric_limits<Real32>::quiet_NaN()
                        : sign * std::numeric_limits<Real32>::infinity();
    }
    const int whole = exponent > 0 ? mantissa + (1 << mantissaBits) : mantissa;
    return sign
        * std::ldexp(
            static_cast<Real32>(whole), std::max(exponent, 1) - exponentBias - mantissaBits);
}

OSG_END_NAMESPACE
