#pragma once

#include <OpenSG/OSGGeoProperty.h>
#include <OpenSG/OSGGeometryBase.h>

#include <array>

OSG_BEGIN_NAMESPACE

/// Points, lines and faces. `types` and `lengths` define the primitives. The other properties hold
/// the values of the vertices. Without indices the vertices use the values in sequence. With
/// indices each vertex has one index for all properties. With an index mapping each vertex has an
/// index for each entry of the mapping; the bits of an entry are the properties that use the index.
///
/// A geometry holds references to its properties and is one of their parents.
class Geometry : public GeometryBase
{
    typedef GeometryBase Inherited;

public:
    static constexpr UInt16 MapPosition = 1;
    static constexpr UInt16 MapNormal = 2;
    static constexpr UInt16 MapColor = 4;
    static constexpr UInt16 MapSecondaryColor = 8;
    static constexpr UInt16 MapTexCoords = 16;
    static constexpr UInt16 MapTexCoords1 = 32;
    static constexpr UInt16 MapTexCoords2 = 64;
    static constexpr UInt16 MapTexCoords3 = 128;
    static constexpr UInt16 MapTexCoords4 = 256;
    static constexpr UInt16 MapTexCoords5 = 512;
    static constexpr UInt16 MapTexCoords6 = 1024;
    static constexpr UInt16 MapTexCoords7 = 2048;
    static constexpr UInt16 MapEmpty = 4096;

    /// Returns the position of the mapping entry for a property, or -1 if there is none.
    Int16 calcMappingIndex(UInt16 attrib) const;

    void setTypes(const GeoPTypesPtr &p) { put(TypesFieldId, _sfTypes, p); }
    void setLengths(const GeoPLengthsPtr &p) { put(LengthsFieldId, _sfLengths, p); }
    void setPositions(const GeoPositionsPtr &p) { put(PositionsFieldId, _sfPositions, p); }
    void setNormals(const GeoNormalsPtr &p) { put(NormalsFieldId, _sfNormals, p); }
    void setColors(const GeoColorsPtr &p) { put(ColorsFieldId, _sfColors, p); }
    void setSecondaryColors(const GeoColorsPtr &p)
    {
        put(SecondaryColorsFieldId, _sfSecondaryColors, p);
    }
    void setTexCoords(const GeoTexCoordsPtr &p) { put(TexCoordsFieldId, _sfTexCoords, p); }
    void setTexCoords1(const GeoTexCoordsPtr &p) { put(TexCoords1FieldId, _sfTexCoords1, p); }
    void setTexCoords2(const GeoTexCoordsPtr &p) { put(TexCoords2FieldId, _sfTexCoords2, p); }
    void setTexCoords3(const GeoTexCoordsPtr &p) { put(TexCoords3FieldId, _sfTexCoords3, p); }
    void setTexCoords4(const GeoTexCoordsPtr &p) { put(TexCoords4FieldId, _sfTexCoords4, p); }
    void setTexCoords5(const GeoTexCoordsPtr &p) { put(TexCoords5FieldId, _sfTexCoords5, p); }
    void setTexCoords6(const GeoTexCoordsPtr &p) { put(TexCoords6FieldId, _sfTexCoords6, p); }
    void setTexCoords7(const GeoTexCoordsPtr &p) { put(TexCoords7FieldId, _sfTexCoords7, p); }
    void setIndices(const GeoIndicesPtr &p) { put(IndicesFieldId, _sfIndices, p); }

    void changed(BitVector whichField, UInt32 origin) override;

protected:
    friend class FieldContainer;

    Geometry() = default;
    /// The copy shares the properties.
    Geometry(const Geometry &source);
    ~Geometry() override;

    void adjustVolume(Volume &volume) override;
    void forEachHeld(const HeldFunction &function) const override;

private:
    static constexpr UInt32 propertyCount = IndicesFieldId - TypesFieldId + 1;

    template <class PtrT> void put(UInt32 fieldId, SField<PtrT> &field, const PtrT &property)
    {
        field.setValue(property);
        hold(fieldId, property);
    }
    void hold(UInt32 fieldId, const AttachmentPtr &property);
    void holdFields(BitVector whichField);

    std::array<AttachmentRefPtr, propertyCount> _held;
};

OSG_END_NAMESPACE
