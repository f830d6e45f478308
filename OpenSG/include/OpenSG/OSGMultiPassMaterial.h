#pragma once

#include <OpenSG/OSGMultiPassMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// Draws with several materials, one after the other.
class MultiPassMaterial : public MultiPassMaterialBase
{
    typedef MultiPassMaterialBase Inherited;

public:
    /// Returns the State of the material at the index, or null if there is none.
    StatePtr getState(UInt32 index = 0) override;

protected:
    friend class FieldContainer;

    MultiPassMaterial() = default;
    MultiPassMaterial(const MultiPassMaterial &) = default;
    ~MultiPassMaterial() override = default;

    bool hasTransparentPart() const override;
};

OSG_END_NAMESPACE
