#pragma once

#include <OpenSG/OSGTransformBase.h>

OSG_BEGIN_NAMESPACE

/// Transforms its children by a matrix.
class Transform : public TransformBase
{
    typedef TransformBase Inherited;

public:
    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    Transform() = default;
    Transform(const Transform &) = default;
    ~Transform() override = default;

    void accumulateMatrix(Matrix &result) override;
    void adjustVolume(Volume &volume) override;
};

OSG_END_NAMESPACE
