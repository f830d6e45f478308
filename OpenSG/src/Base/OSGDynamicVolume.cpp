#include <OpenSG/OSGDynamicVolume.h>

OSG_BEGIN_NAMESPACE

Volume &DynamicVolume::getInstance()
{
    return std::visit([](auto &volume) -> Volume & { return volume; }, _instance);
}

const Volume &DynamicVolume::getInstance() const
{
    return std::visit([](const auto &volume) -> const Volume & { return volume; }, _instance);
}

void DynamicVolume::instanceChanged()
{
    Volume::setState(getInstance().getState());
}

void DynamicVolume::setVolumeType(Type type)
{
    if (type == BOX_VOLUME) {
        _instance.emplace<BoxVolume>();
    } else {
        _instance.emplace<SphereVolume>();
    }
    instanceChanged();
}

void DynamicVolume::morphToType(Type type)
{
    if (type == getType()) {
        return;
    }
    const DynamicVolume before = *this;
    setVolumeType(type);
    getInstance().extendBy(before.getInstance());
    setState(before.getState());
}

void DynamicVolume::setState(UInt16 state)
{
    Volume::setState(state);
    getInstance().setState(state);
}

void DynamicVolume::setValue(const Char8 *text)
{
    Real32 numbers[6];
    const UInt32 count = NumberText::readReals(text, numbers, 6);
    if (count == 4) {
        _instance = SphereVolume(Pnt3f(numbers), numbers[3]);
    } else {
        _instance = count == 6 ? BoxVolume(Pnt3f(numbers), Pnt3f(numbers + 3))
                               : BoxVolume(Pnt3f(), Pnt3f());
    }
    instanceChanged();
}

void DynamicVolume::getBounds(Pnt3f &minPoint, Pnt3f &maxPoint) const
{
    getInstance().getBounds(minPoint, maxPoint);
}

void DynamicVolume::extendBy(const Pnt3f &point)
{
    getInstance().extendBy(point);
    instanceChanged();
}

void DynamicVolume::extendBy(const Volume &volume)
{
    const auto *dynamic = dynamic_cast<const DynamicVolume *>(&volume);
    getInstance().extendBy(dynamic ? dynamic->getInstance() : volume);
    instanceChanged();
}

void DynamicVolume::transform(const Matrix &matrix)
{
    getInstance().transform(matrix);
    instanceChanged();
}

OSG_END_NAMESPACE
