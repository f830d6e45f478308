#pragma once

#include <OpenSG/OSGDynamicVolume.h>

OSG_BEGIN_NAMESPACE

/// A volume as bytes: type, state and numbers. Unlike the text it is complete.
struct VolumeBytes
{
    /// A DynamicVolume::Type. Unknown numbers mean a box.
    UInt32 type;
    UInt32 state;
    /// The two corners, or center and radius.
    Real32 numbers[6];

    static VolumeBytes of(const BoxVolume &box);
    static VolumeBytes of(const DynamicVolume &volume);

    void assignTo(BoxVolume &box) const;
    void assignTo(DynamicVolume &volume) const;
};

OSG_END_NAMESPACE
