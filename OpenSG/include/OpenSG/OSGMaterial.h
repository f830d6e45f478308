#pragma once

#include <OpenSG/OSGMaterialBase.h>
#include <OpenSG/OSGState.h>

OSG_BEGIN_NAMESPACE

/// The look of a surface. The end of an edit updates the State of the material. The first such edit
/// creates the State, so edits of a material create containers.
class Material : public MaterialBase
{
    typedef MaterialBase Inherited;

public:
    static constexpr Int32 NoStateSorting = 0x7fffffff;
    static constexpr Int32 TransparencyAutoDetection = 0;
    static constexpr Int32 TransparencyForceTransparent = 1;
    static constexpr Int32 TransparencyForceOpaque = 2;

    /// Creates a State. It belongs to the caller.
    virtual StatePtr makeState();
    virtual void rebuildState();
    /// Returns the material's own State of the pass `index`. Creates it if necessary.
    virtual StatePtr getState(UInt32 index = 0);
    /// The field `transparencyMode` decides. By default a material is transparent if one of its
    /// parts is.
    virtual bool isTransparent() const;

    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    Material() = default;
    /// The copy has its own State.
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
