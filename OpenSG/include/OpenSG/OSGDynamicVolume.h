#pragma once

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGSphereVolume.h>

#include <variant>

OSG_BEGIN_NAMESPACE

/// A box or a sphere, chosen at run time.
class DynamicVolume : public Volume
{
public:
    enum Type { BOX_VOLUME, SPHERE_VOLUME };

    explicit DynamicVolume(Type type = BOX_VOLUME) { setVolumeType(type); }

    using Volume::extendBy;
    using Volume::intersect;

    /// Returns the box or sphere. Call instanceChanged after you modify it.
    Volume &getInstance();
    const Volume &getInstance() const;
    /// Copies the state of the instance.
    void instanceChanged();

    Type getType() const { return static_cast<Type>(_instance.index()); }
    /// The volume becomes an empty one of this type.
    void setVolumeType(Type type);
    /// The volume becomes one of this type that contains the present one.
    void morphToType(Type type);

    void setState(UInt16 state) override;
    /// Reads a box from six numbers and a sphere from exactly four. Anything else gives a box of
    /// zeros. Brackets and commas count as blanks. The volume becomes valid and not empty.
    void setValue(const Char8 *text);

    void getCenter(Pnt3f &center) const override { getInstance().getCenter(center); }
    Real32 getScalarVolume() const override { return getInstance().getScalarVolume(); }
    void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const override;
    void extendBy(const Pnt3f &point) override;
    void extendBy(const Volume &volume) override;
    bool intersect(const Pnt3f &point) const override { return getInstance().intersect(point); }
    void transform(const Matrix &matrix) override;
    void dump() const override { getInstance().dump(); }

    /// Always false, even for the same volume. Callers that compare volumes to find changes always
    /// see a change.
    bool operator==(const DynamicVolume &) const { return false; }
    bool operator!=(const DynamicVolume &) const { return true; }

private:
    std::variant<BoxVolume, SphereVolume> _instance;
};

OSG_END_NAMESPACE
