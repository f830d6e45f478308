#pragma once

#include <OpenSG/OSGMaterialBase.h>
#include <OpenSG/OSGState.h>

OSG_BEGIN_NAMESPACE

/// How surfaces look. The end of any edit of a material brings its State up to date, which
/// exists from the first such edit on: editing a material makes containers.
class Material : public MaterialBase
{
    typedef MaterialBase Inherited;

public:
    static constexpr Int32 NoStateSorting = 0x7fffffff;
    static constexpr Int32 TransparencyAutoDetection = 0;
    static constexpr Int32 TransparencyForceTransparent = 1;
    static constexpr Int32 TransparencyForceOpaque = 2;

    /// A new State for the caller.
    virtual StatePtr makeState();
    virtual void rebuildState();
    /// The material's own State of the pass `index`, made if need be.
    virtual StatePtr getState(UInt32 index = 0);
    /// Follows `transparencyMode`, and by default whether a part of the material is transparent.
    virtual bool isTransparent() const;

    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    Material() = default;
    /// The copy makes a State of its own.
    Material(const Material &source);
    ~Material() override = default;

    /// Adds the material's chunks to an empty State.
    virtual void fillState(State &) { }
    virtual bool hasTransparentPart() const { return false; }

private:
    StateRefPtr _state;
};

/// The null handle of materials.
extern MaterialPtr NullMaterial;

OSG_END_NAMESPACE
