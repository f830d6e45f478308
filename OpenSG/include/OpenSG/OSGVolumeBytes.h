#pragma once

#include <OpenSG/OSGDynamicVolume.h>

OSG_BEGIN_NAMESPACE

/// A volume as bytes: what it is, the state it is in and where it lies. Unlike the text this loses
/// nothing.
struct VolumeBytes
{
    /// One of DynamicVolume::Type; anything but a sphere is a box.
    UInt32 type;
    UInt32 state;
    /// Two corners, or center and radius.
    Real32 numbers[6];

    static VolumeBytes of(const BoxVolume &box);
    static VolumeBytes of(const DynamicVolume &volume);

    void assignTo(BoxVolume &box) const;
    void assignTo(DynamicVolume &volume) const;
};

OSG_END_NAMESPACE
