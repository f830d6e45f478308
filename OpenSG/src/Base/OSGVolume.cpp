#include <OpenSG/OSGVolume.h>

OSG_BEGIN_NAMESPACE

void Volume::setValid(bool value)
{
    put(OSGVALID, value || isStatic());
}

void Volume::setEmpty(bool value)
{
    put(OSGEMPTY, value);
    put(OSGVALID, true);
}

void Volume::put(State bit, bool value)
{
    setState(static_cast<UInt16>(value ? _state | bit : _state & ~bit));
}

Pnt3f Volume::getMin() const
{
    Pnt3f minPoint, maxPoint;
    getBounds(minPoint, maxPoint);
    return minPoint;
}

Pnt3f Volume::getMax() const
{
    Pnt3f minPoint, maxPoint;
    getBounds(minPoint, maxPoint);
    return maxPoint;
}

bool Volume::intersect(const Volume &volume) const
{
    if (isEmpty() || volume.isEmpty()) {
        return false;
    }
    if (isInfinite() || volume.isInfinite()) {
        return true;
    }
    Pnt3f low, high, otherLow, otherHigh;
    getBounds(low, high);
    volume.getBounds(otherLow, otherHigh);
    for (UInt32 i = 0; i < 3; ++i) {
        if (low[i] > otherHigh[i] || high[i] < otherLow[i]) {
            return false;
        }
    }
    return true;
}

bool Volume::contributes(const Volume &volume)
{
    if (!isExtendable() || !volume.isValid() || volume.isEmpty()) {
        return false;
    }
    if (volume.isInfinite()) {
        setEmpty(false);
        setInfinite();
        return false;
    }
    return true;
}

OSG_END_NAMESPACE
