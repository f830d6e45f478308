#pragma once

#include <OpenSG/OSGComponentTransformBase.h>

OSG_BEGIN_NAMESPACE

/// A transformation given by its components. The end of an edit of them computes the matrix and
/// is followed by an edit of that; merely setting them does not touch it.
class ComponentTransform : public ComponentTransformBase
{
    typedef ComponentTransformBase Inherited;

public:
    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    ComponentTransform() = default;
    ComponentTransform(const ComponentTransform &) = default;
    ~ComponentTransform() override = default;
};

OSG_END_NAMESPACE
