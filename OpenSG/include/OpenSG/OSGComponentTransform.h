#pragma once

#include <OpenSG/OSGComponentTransformBase.h>

OSG_BEGIN_NAMESPACE

/// A transformation given by its components. When an edit of a component ends, the matrix is
/// computed and an edit of the matrix follows. Setters alone do not change the matrix.
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
