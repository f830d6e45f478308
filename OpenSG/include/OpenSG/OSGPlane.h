#pragma once

#include <OpenSG/OSGVector.h>

OSG_BEGIN_NAMESPACE

/// The points p with `normal . p == distance`. A default plane has only zeros.
class Plane
{
public:
    Plane() = default;
    Plane(const Vec3f &normal, Real32 distance) { set(normal, distance); }

    /// `normal` is not normalized.
    void set(const Vec3f &normal, Real32 distance)
    {
        _normal = normal;
        _distance = distance;
    }

    const Vec3f &getNormal() const { return _normal; }
    Real32 getDistanceFromOrigin() const { return _distance; }

    bool operator==(const Plane &other) const
    {
        return _normal == other._normal && std::fabs(_distance - other._distance) <= Eps;
    }
    bool operator!=(const Plane &other) const { return !(*this == other); }

private:
    Vec3f _normal;
    Real32 _distance = 0;
};

OSG_END_NAMESPACE
