#include <OpenSG/OSGSphereVolume.h>

#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

void SphereVolume::setValue(const Pnt3f &center, Real32 radius)
{
    _center = center;
    _radius = radius;
    setEmpty(false);
}

Real32 SphereVolume::getScalarVolume() const
{
    return isEmpty() ? 0 : 4.f / 3.f * Pi * _radius * _radius * _radius;
}

void SphereVolume::getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const
{
    minPoint = _center - Vec3f(_radius);
    maxPoint = _center + Vec3f(_radius);
}

void SphereVolume::extendBy(const Pnt3f &point)
{
    if (isExtendable()) {
        extendBy(point, 0);
    }
}

void SphereVolume::extendBy(const Volume &volume)
{
    if (!contributes(volume)) {
        return;
    }
    Pnt3f center, low, high;
    volume.getCenter(center);
    volume.getBounds(low, high);
    const auto *sphere = dynamic_cast<const SphereVolume *>(&volume);
    extendBy(center, sphere ? sphere->getRadius() : center.dist(high));
}

// The sphere around two spheres reaches from the far end of one to the far end of the other.
void SphereVolume::extendBy(const Pnt3f &center, Real32 radius)
{
    const Vec3f way = center - _center;
    const Real32 distance = way.length();
    if (isEmpty() || distance + _radius <= radius) {
        setValue(center, radius);
    } else if (distance + radius > _radius) {
        const Real32 newRadius = (distance + radius + _radius) / 2;
        setValue(_center + way * ((newRadius - _radius) / distance), newRadius);
    }
}

bool SphereVolume::intersect(const Pnt3f &point) const
{
    return !isEmpty() && (isInfinite() || _center.dist(point) <= _radius);
}

void SphereVolume::transform(const Matrix &matrix)
{
    Real32 largestScale = 0;
    for (UInt32 column = 0; column < 3; ++column) {
        largestScale = std::max(largestScale, Vec3f(matrix[column]).length());
    }
    matrix.multMatrixPnt(_center);
    _radius *= largestScale;
}

void SphereVolume::dump() const
{
    osgLog() << "SphereVolume " << _center << ", " << _radius << endLog;
}

bool SphereVolume::operator==(const SphereVolume &other) const
{
    return _center.equals(other._center, 0) && _radius == other._radius;
}

OSG_END_NAMESPACE
