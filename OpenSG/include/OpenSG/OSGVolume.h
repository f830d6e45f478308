#pragma once

#include <OpenSG/OSGMatrix.h>

OSG_BEGIN_NAMESPACE

/// A bounding volume. A new volume is valid and empty. An invalid volume has to be computed again.
/// A static volume never becomes invalid. An infinite volume contains everything.
class Volume
{
public:
    enum State { OSGVALID = 1, OSGEMPTY = 2, OSGSTATIC = 4, OSGINFINITE = 8 };

    virtual ~Volume() = default;

    UInt16 getState() const { return _state; }
    virtual void setState(UInt16 state) { _state = state; }

    bool isValid() const { return has(OSGVALID); }
    bool isEmpty() const { return has(OSGEMPTY); }
    bool isStatic() const { return has(OSGSTATIC); }
    bool isInfinite() const { return has(OSGINFINITE); }

    /// Static volumes stay valid.
    void setValid(bool value = true);
    /// An empty volume is valid.
    void setEmpty(bool value = true);
    void setStatic(bool value = true) { put(OSGSTATIC, value); }
    void setInfinite(bool value = true) { put(OSGINFINITE, value); }

    virtual void getCenter(Pnt3f &center) const = 0;
    virtual Real32 getScalarVolume() const = 0;
    virtual void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const = 0;
    Pnt3f getMin() const;
    Pnt3f getMax() const;

    /// Extends the volume by as little as possible to contain the point or the other volume.
    /// Invalid, infinite and static volumes do not change. Empty and invalid arguments are ignored.
    virtual void extendBy(const Pnt3f &point) = 0;
    virtual void extendBy(const Volume &volume) = 0;

    /// Returns false for empty volumes and true for infinite ones. Two volumes intersect if their
    /// boxes do.
    virtual bool intersect(const Pnt3f &point) const = 0;
    virtual bool intersect(const Volume &volume) const;

    /// Replaces the volume by one that contains the transformed volume.
    virtual void transform(const Matrix &matrix) = 0;
    virtual void dump() const = 0;

protected:
    Volume() = default;
    Volume(const Volume &) = default;
    Volume &operator=(const Volume &) = default;

    bool isExtendable() const { return isValid() && !isInfinite() && !isStatic(); }
    /// Returns whether this volume must be extended by `volume`. Makes this volume infinite if
    /// `volume` is.
    bool contributes(const Volume &volume);

private:
    bool has(State bit) const { return (_state & bit) != 0; }
    void put(State bit, bool value);

    UInt16 _state = OSGVALID | OSGEMPTY;
};

OSG_END_NAMESPACE
