#include <OpenSG/OSGComponentTransform.h>
#include <OpenSG/OSGInverseTransform.h>
#include <OpenSG/OSGNode.h>

#include <algorithm>

OSG_BEGIN_NAMESPACE

void Transform::changed(BitVector whichField, UInt32 origin)
{
    if (whichField & MatrixFieldMask) {
        invalidateVolume();
    }
    Inherited::changed(whichField, origin);
}

void Transform::accumulateMatrix(Matrix &result)
{
    result.mult(getMatrix());
}

void Transform::adjustVolume(Volume &volume)
{
    volume.transform(getMatrix());
}

void ComponentTransform::changed(BitVector whichField, UInt32 origin)
{
    constexpr BitVector components = CenterFieldMask | RotationFieldMask | ScaleFieldMask
        | ScaleOrientationFieldMask | TranslationFieldMask;
    if (whichField & components) {
        const ComponentTransformPtr self(this);
        beginEditCP(self, MatrixFieldMask);
        getMatrix().setTransform(
            getTranslation(), getRotation(), getScale(), getScaleOrientation(), getCenter());
        endEditCP(self, MatrixFieldMask);
    }
    Inherited::changed(whichField, origin);
}

void InverseTransform::accumulateMatrix(Matrix &result)
{
    result.setIdentity();
}

void InverseTransform::adjustVolume(Volume &volume)
{
    const auto isPresent = [](const NodePtr &parent) { return parent != NullFC; };
    const auto node = std::find_if(_mfParents.begin(), _mfParents.end(), isPresent);
    const NodePtr place = node != _mfParents.end() ? (*node)->getParent() : NodePtr();
    Matrix fromWorld;
    if (place && place->getToWorld().inverse(fromWorld)) {
        volume.transform(fromWorld);
    }
}

OSG_END_NAMESPACE
