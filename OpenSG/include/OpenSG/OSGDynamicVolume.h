#pragma once

#include <OpenSG/OSGBoxVolume.h>
#include <OpenSG/OSGSphereVolume.h>

#include <variant>

OSG_BEGIN_NAMESPACE

/// A box or a sphere, as one chooses at run time.
class DynamicVolume : public Volume
{
public:
    enum Type { BOX_VOLUME, SPHERE_VOLUME };

    explicit DynamicVolume(Type type = BOX_VOLUME) { setVolumeType(type); }

    using Volume::extendBy;
    using Volume::intersect;

    /// The box or sphere within. After modifying it call instanceChanged.
    Volume &getInstance();
    const Volume &getInstance() const;
    /// Takes over the state of the instance.
    void instanceChanged();

    Type getType() const { return static_cast<Type>(_instance.index()); }
    /// Becomes an empty volume of that type.
    void setVolumeType(Type type);
    /// Becomes a volume of that type that contains the present one.
    void morphToType(Type type);

    void setState(UInt16 state) override;
    /// Six numbers make a box, exactly four a sphere, anything else a box of zeros; brackets and
    /// commas count as blanks. The volume is valid and not empty afterwards.
    void setValue(const Char8 *text);

    void getCenter(Pnt3f &center) const override { getInstance().getCenter(center); }
    Real32 getScalarVolume() const override { return getInstance().getScalarVolume(); }
    void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const override;
    void extendBy(const Pnt3f &point) override;
    void extendBy(const Volume &volume) override;
    bool intersect(const Pnt3f &point) const override { return getInstance().intersect(point); }
    void transform(const Matrix &matrix) override;
    void dump() const override { getInstance().dump(); }

    /// Never equal, not even to itself: whoever asks whether a volume is unchanged is told to
    /// look again.
    bool operator==(const DynamicVolume &) const { return false; }
    bool operator!=(const DynamicVolume &) const { return true; }

private:
    std::variant<BoxVolume, SphereVolume> _instance;
};

OSG_END_NAMESPACE
