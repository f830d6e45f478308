#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// Masks of fields. Bit n is the field with the id n. Ids start at 1.
namespace FieldBits {
constexpr BitVector AllFields = 0xffffffffffffffff;
constexpr BitVector NoField = 0;
constexpr BitVector Field0 = BitVector(1) << 0;
constexpr BitVector Field1 = BitVector(1) << 1;
constexpr BitVector Field2 = BitVector(1) << 2;
constexpr BitVector Field3 = BitVector(1) << 3;
constexpr BitVector Field4 = BitVector(1) << 4;
constexpr BitVector Field5 = BitVector(1) << 5;
constexpr BitVector Field6 = BitVector(1) << 6;
constexpr BitVector Field7 = BitVector(1) << 7;
constexpr BitVector Field8 = BitVector(1) << 8;
constexpr BitVector Field9 = BitVector(1) << 9;
constexpr BitVector Field10 = BitVector(1) << 10;
constexpr BitVector Field11 = BitVector(1) << 11;
constexpr BitVector Field12 = BitVector(1) << 12;
constexpr BitVector Field13 = BitVector(1) << 13;
constexpr BitVector Field14 = BitVector(1) << 14;
constexpr BitVector Field15 = BitVector(1) << 15;
constexpr BitVector Field16 = BitVector(1) << 16;
constexpr BitVector Field17 = BitVector(1) << 17;
constexpr BitVector Field18 = BitVector(1) << 18;
constexpr BitVector Field19 = BitVector(1) << 19;
constexpr BitVector Field20 = BitVector(1) << 20;
constexpr BitVector Field21 = BitVector(1) << 21;
constexpr BitVector Field22 = BitVector(1) << 22;
constexpr BitVector Field23 = BitVector(1) << 23;
constexpr BitVector Field24 = BitVector(1) << 24;
constexpr BitVector Field25 = BitVector(1) << 25;
constexpr BitVector Field26 = BitVector(1) << 26;
constexpr BitVector Field27 = BitVector(1) << 27;
constexpr BitVector Field28 = BitVector(1) << 28;
constexpr BitVector Field29 = BitVector(1) << 29;
constexpr BitVector Field30 = BitVector(1) << 30;
constexpr BitVector Field31 = BitVector(1) << 31;
}

/// The origin of a change, the second argument of FieldContainer::changed().
namespace ChangedOrigin {
constexpr UInt32 External = 0x0001;
constexpr UInt32 Sync = 0x0002;
constexpr UInt32 Child = 0x0004;
/// The field was changed without its setter, by a scene file for example.
constexpr UInt32 Abstract = 0x0008;
constexpr UInt32 AbstrIgnoreCore = 0x0100;
constexpr UInt32 AbstrIgnoreChild = 0x0200;
constexpr UInt32 AbstrCheckValid = 0x0400;
constexpr UInt32 AbstrIncRefCount = 0x0800;
}

namespace FCDumpFlags {
constexpr BitVector RefCount = 1;
constexpr BitVector AllAspects = 2;
constexpr BitVector All = 0xFFFFFFFF;
}

OSG_END_NAMESPACE
