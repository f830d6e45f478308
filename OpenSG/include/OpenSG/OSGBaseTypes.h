#pragma once

#include <OpenSG/OSGConfig.h>
#include <OpenSG/OSGGL.h>
#include <OpenSG/OSGTypeTraits.h>

#include <cstdint>

OSG_BEGIN_NAMESPACE

typedef char Char8;
typedef signed char SChar8;
typedef unsigned char UChar8;

typedef std::int8_t Int8;
typedef std::uint8_t UInt8;
typedef std::int16_t Int16;
typedef std::uint16_t UInt16;
typedef std::int32_t Int32;
typedef std::uint32_t UInt32;
typedef std::int64_t Int64;
typedef std::uint64_t UInt64;

typedef float Real32;
typedef double Real64;
typedef long double Real128;

typedef UInt64 BitVector;
typedef UInt8 *MemoryHandle;

using ::GLenum;

constexpr Real32 Eps = 1E-6f;
constexpr Real32 Pi = 3.14159265358979323846f;
constexpr Real32 Sqrt2 = 1.41421356237309504880f;
constexpr Real32 Inf = 1E30f;
constexpr Real32 NegInf = -Inf;

OSG_END_NAMESPACE
