#pragma once

#include <OpenSG/OSGVolume.h>

OSG_BEGIN_NAMESPACE

/// A sphere. By default it is a point at the origin.
class SphereVolume : public Volume
{
public:
    SphereVolume() = default;
    SphereVolume(const Pnt3f &center, Real32 radius) { setValue(center, radius); }

    using Volume::extendBy;
    using Volume::intersect;

    const Pnt3f &getCenter() const { return _center; }
    Real32 getRadius() const { return _radius; }
    /// The sphere becomes valid and not empty.
    void setValue(const Pnt3f &center, Real32 radius);
    void setCenter(const Pnt3f &center) { _center = center; }
    void setRadius(Real32 radius) { _radius = radius; }

    void getCenter(Pnt3f &center) const override { center = _center; }
    Real32 getScalarVolume() const override;
    void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const override;
    void extendBy(const Pnt3f &point) override;
    void extendBy(const Volume &volume) override;
    bool intersect(const Pnt3f &point) const override;
    void transform(const Matrix &matrix) override;
    void dump() const override;

    bool operator==(const SphereVolume &other) const;
    bool operator!=(const SphereVolume &other) const { return !(*this == other); }

private:
    void extendBy(const Pnt3f &center, Real32 radius);

    Pnt3f _center;
    Real32 _radius = 0;
};

OSG_END_NAMESPACE
