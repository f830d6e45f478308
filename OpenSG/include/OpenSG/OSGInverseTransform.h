#pragma once

#include <OpenSG/OSGInverseTransformBase.h>

OSG_BEGIN_NAMESPACE

/// Cancels all transformations above its node: the children are placed in the world. What it
/// takes up is told for its first node.
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
