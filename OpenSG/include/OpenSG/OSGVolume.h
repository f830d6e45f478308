#pragma once

#include <OpenSG/OSGMatrix.h>

OSG_BEGIN_NAMESPACE

/// A region of space that bounds what is in it. A new volume is valid and empty. An invalid one
/// waits to be computed anew, a static one is never invalidated, an infinite one contains
/// everything.
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
    /// An emptied volume is valid.
    void setEmpty(bool value = true);
    void setStatic(bool value = true) { put(OSGSTATIC, value); }
    void setInfinite(bool value = true) { put(OSGINFINITE, value); }

    virtual void getCenter(Pnt3f &center) const = 0;
    virtual Real32 getScalarVolume() const = 0;
    virtual void getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const = 0;
    Pnt3f getMin() const;
    Pnt3f getMax() const;

    /// Grow as little as possible to contain the point or the volume. An invalid, infinite or
    /// static volume stays as it is, and an empty or invalid one adds nothing.
    virtual void extendBy(const Pnt3f &point) = 0;
    virtual void extendBy(const Volume &volume) = 0;

    /// False for empty volumes, true for infinite ones; volumes meet where their boxes do.
    virtual bool intersect(const Pnt3f &point) const = 0;
    virtual bool intersect(const Volume &volume) const;

    /// Becomes a volume that contains this one after the transformation.
    virtual void transform(const Matrix &matrix) = 0;
    virtual void dump() const = 0;

protected:
    Volume() = default;
    Volume(const Volume &) = default;
    Volume &operator=(const Volume &) = default;

    bool isExtendable() const { return isValid() && !isInfinite() && !isStatic(); }
    /// Whether `volume` takes part in extending; infinity is passed on here.
    bool contributes(const Volume &volume);

private:
    bool has(State bit) const { return (_state & bit) != 0; }
    void put(State bit, bool value);

    UInt16 _state = OSGVALID | OSGEMPTY;
};

OSG_END_NAMESPACE
