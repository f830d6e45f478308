#pragma once

#include <OpenSG/OSGVolume.h>

OSG_BEGIN_NAMESPACE

/// An axis-aligned box. Both corners of a default box are the origin.
class BoxVolume : public Volume
{
public:
    BoxVolume() = default;
    BoxVolume(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ);
    BoxVolume(const Pnt3f &minPoint, const Pnt3f &maxPoint);

    using Volume::extendBy;
    using Volume::intersect;

    const Pnt3f &getMin() const { return _min; }
    const Pnt3f &getMax() const { return _max; }
    void getBounds(
        Real32 &minX, Real32 &minY, Real32 &minZ, Real32 &maxX, Real32 &maxY, Real32 &maxZ) const;
    void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const override;

    /// The box becomes valid and not empty.
    void setBounds(Real32 minX, Real32 minY, Real32 minZ, Real32 maxX, Real32 maxY, Real32 maxZ);
    void setBounds(const Pnt3f &minPoint, const Pnt3f &maxPoint);
    /// The center of the box is the origin.
    void setBounds(Real32 width, Real32 height, Real32 depth);
    /// Reads six numbers. Brackets and commas count as blanks. Fewer than six numbers make all of
    /// them 0.
    void setValue(const Char8 *text);

    void getCenter(Pnt3f &center) const override;
    Real32 getScalarVolume() const override;
    void extendBy(const Pnt3f &point) override;
    void extendBy(const Volume &volume) override;
    bool intersect(const Pnt3f &point) const override;
    void transform(const Matrix &matrix) override;
    void dump() const override;

    bool operator==(const BoxVolume &other) const;
    bool operator!=(const BoxVolume &other) const { return !(*this == other); }

private:
    Pnt3f _min;
    Pnt3f _max;
};

OSG_END_NAMESPACE
