#include <OpenSG/OSGVolumeBytes.h>

OSG_BEGIN_NAMESPACE

VolumeBytes VolumeBytes::of(const BoxVolume &box)
{
    const Pnt3f &low = box.getMin();
    const Pnt3f &high = box.getMax();
    return { DynamicVolume::BOX_VOLUME, box.getState(),
        { low.x(), low.y(), low.z(), high.x(), high.y(), high.z() } };
}

// The instance may have changed since the volume around it was last updated.
VolumeBytes VolumeBytes::of(const DynamicVolume &volume)
{
    VolumeBytes bytes {};
    if (const auto *sphere = dynamic_cast<const SphereVolume *>(&volume.getInstance())) {
        const Pnt3f &center = sphere->getCenter();
        bytes = { DynamicVolume::SPHERE_VOLUME, 0,
            { center.x(), center.y(), center.z(), sphere->getRadius(), 0, 0 } };
    } else {
        bytes = of(static_cast<const BoxVolume &>(volume.getInstance()));
    }
    bytes.state = volume.getState();
    return bytes;
}

void VolumeBytes::assignTo(BoxVolume &box) const
{
    box.setBounds(Pnt3f(numbers), Pnt3f(numbers + 3));
    box.setState(static_cast<UInt16>(state));
}

void VolumeBytes::assignTo(DynamicVolume &volume) const
{
    const bool isSphere = type == DynamicVolume::SPHERE_VOLUME;
    volume.setVolumeType(isSphere ? DynamicVolume::SPHERE_VOLUME : DynamicVolume::BOX_VOLUME);
    if (isSphere) {
        static_cast<SphereVolume &>(volume.getInstance()).setValue(Pnt3f(numbers), numbers[3]);
    } else {
        assignTo(static_cast<BoxVolume &>(volume.getInstance()));
    }
    volume.setState(static_cast<UInt16>(state));
}

OSG_END_NAMESPACE
