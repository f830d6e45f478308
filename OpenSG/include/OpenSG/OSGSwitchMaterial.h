#pragma once

#include <OpenSG/OSGSwitchMaterialBase.h>

OSG_BEGIN_NAMESPACE

/// Draws with the material at the index `choice`.
class SwitchMaterial : public SwitchMaterialBase
{
    typedef SwitchMaterialBase Inherited;

public:
    /// Returns the State of the chosen material, or null if there is none.
    StatePtr getState(UInt32 index = 0) override;

protected:
    friend class FieldContainer;

    SwitchMaterial() = default;
    SwitchMaterial(const SwitchMaterial &) = default;
    ~SwitchMaterial() override = default;

    bool hasTransparentPart() const override;
};

OSG_END_NAMESPACE
