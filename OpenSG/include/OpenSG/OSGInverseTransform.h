#pragma once

#include <OpenSG/OSGInverseTransformBase.h>

OSG_BEGIN_NAMESPACE

/// Cancels all transformations above its node, so that the children have world coordinates. Its
/// volume is computed for the first of its nodes.
class InverseTransform : public InverseTransformBase
{
    typedef InverseTransformBase Inherited;

protected:
    friend class FieldContainer;

    InverseTransform() = default;
    InverseTransform(const InverseTransform &) = default;
    ~InverseTransform() override = default;

    void accumulateMatrix(Matrix &result) override;
    void adjustVolume(Volume &volume) override;
};

OSG_END_NAMESPACE
