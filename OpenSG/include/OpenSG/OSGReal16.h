#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// A real number of 16 bits (1 sign, 5 exponent, 10 mantissa) for compact arrays. Arithmetic uses
/// Real32. Conversion rounds to nearest. Too large numbers become infinite.
class Real16
{
public:
    Real16() = default;
    Real16(Real32 value);

    operator Real32() const;

    UInt16 bits() const { return _bits; }

private:
    UInt16 _bits = 0;
};

OSG_END_NAMESPACE
