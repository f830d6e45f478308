#pragma once

#include <OpenSG/OSGFieldTable.h>
#include <OpenSG/OSGGeoColors.h>
#include <OpenSG/OSGGeoIndices.h>
#include <OpenSG/OSGGeoNormals.h>
#include <OpenSG/OSGGeoPLengths.h>
#include <OpenSG/OSGGeoPTypes.h>
#include <OpenSG/OSGGeoPositions.h>
#include <OpenSG/OSGGeoTexCoords.h>
#include <OpenSG/OSGGeoValue.h>
#include <OpenSG/OSGMFBaseTypes.h>
#include <OpenSG/OSGMFSysTypes.h>
#include <OpenSG/OSGMFVecTypes.h>

OSG_BEGIN_NAMESPACE

/// A geometry property: an attachment with one field of values. DescT defines its base class, the
/// type of the field and the names of type and field.
template <class DescT> class GeoProperty : public DescT::Inherited
{
    typedef typename DescT::Inherited Inherited;

public:
    typedef FCPtr<typename Inherited::Ptr, GeoProperty> PtrType;
    typedef PtrType Ptr;
    typedef typename DescT::FieldType StoredFieldType;
    typedef typename StoredFieldType::StoredType StoredType;
    typedef typename Inherited::GenericType GenericType;

    enum { GeoPropDataFieldId = Inherited::NextFieldId, NextFieldId = GeoPropDataFieldId + 1 };
    static constexpr BitVector GeoPropDataFieldMask = TypeTraits<BitVector>::One
        << GeoPropDataFieldId;

    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    FieldContainerType &getType() override { return _type; }
    const FieldContainerType &getType() const override { return _type; }
    UInt32 getContainerSize() const override { return sizeof(GeoProperty); }

    static PtrType create() { return Inherited::template copyPrototype<PtrType>(getClassType()); }
    static PtrType createEmpty()
    {
        PtrType result;
        FieldContainer::newPtr(result);
        return result;
    }
    FieldContainerPtr shallowCopy() const override
    {
        PtrType result;
        FieldContainer::newPtr(result, this);
        return result;
    }

    /// The values in the stored type.
    StoredFieldType &getField() { return _field; }
    const StoredFieldType &getField() const { return _field; }
    StoredFieldType *getFieldPtr() { return &_field; }
    const StoredFieldType *getFieldPtr() const { return &_field; }
    StoredType &operator[](const UInt32 index) { return _field[index]; }
    const StoredType &operator[](const UInt32 index) const { return _field[index]; }

    using Inherited::getValue;
    GenericType getValue(const UInt32 index) const override
    {
        return GeoValue::convert<GenericType>(_field[index]);
    }
    void setValue(const GenericType &value, const UInt32 index) override
    {
        _field[index] = GeoValue::convert<StoredType>(value);
    }
    void addValue(const GenericType &value) override
    {
        _field.push_back(GeoValue::convert<StoredType>(value));
    }
    UInt32 getSize() const override { return _field.size(); }
    void resize(size_t newSize) override { _field.resize(newSize); }
    void clear() override { _field.clear(); }

protected:
    friend class FieldContainer;

    GeoProperty() = default;
    GeoProperty(const GeoProperty &) = default;
    ~GeoProperty() override = default;

private:
    static FieldDescription **fieldTable();

    StoredFieldType _field;
    static FieldContainerType _type;
};

template <class DescT> FieldDescription **GeoProperty<DescT>::fieldTable()
{
    static FieldDescription *table[]
        = { describe<&GeoProperty::_field>(DescT::getFieldName(), GeoPropDataFieldId) };
    return table;
}

template <class DescT>
FieldContainerType GeoProperty<DescT>::_type(DescT::getTypeName(), DescT::getGroupName(),
    DescT::getGroupName(), prototypeOf<&GeoProperty::createEmpty>, nullptr, fieldTable(),
    sizeof(FieldDescription *));

/// A row for each property type: DO(type, base class and group, field type, name of the field).
#define OSG_GEO_PROPERTIES(DO)                                                                     \
    DO(GeoPositions2f, GeoPositions, MFPnt2f, "positions")                                         \
    DO(GeoPositions3f, GeoPositions, MFPnt3f, "positions")                                         \
    DO(GeoPositions4f, GeoPositions, MFPnt4f, "positions")                                         \
    DO(GeoPositions2d, GeoPositions, MFPnt2d, "positions")                                         \
    DO(GeoPositions3d, GeoPositions, MFPnt3d, "positions")                                         \
    DO(GeoPositions4d, GeoPositions, MFPnt4d, "positions")                                         \
    DO(GeoPositions2s, GeoPositions, MFPnt2s, "positions")                                         \
    DO(GeoPositions3s, GeoPositions, MFPnt3s, "positions")                                         \
    DO(GeoPositions4s, GeoPositions, MFPnt4s, "positions")                                         \
    DO(GeoNormals3f, GeoNormals, MFVec3f, "normals")                                               \
    DO(GeoNormals3s, GeoNormals, MFVec3s, "normals")                                               \
    DO(GeoNormals3b, GeoNormals, MFVec3b, "normals")                                               \
    DO(GeoColors3f, GeoColors, MFColor3f, "colors")                                                \
    DO(GeoColors4f, GeoColors, MFColor4f, "Colors")                                                \
    DO(GeoColors3ub, GeoColors, MFColor3ub, "Colors")                                              \
    DO(GeoColors4ub, GeoColors, MFColor4ub, "Colors")                                              \
    DO(GeoTexCoords1f, GeoTexCoords, MFReal32, "TexCoords")                                        \
    DO(GeoTexCoords2f, GeoTexCoords, MFVec2f, "TexCoords")                                         \
    DO(GeoTexCoords3f, GeoTexCoords, MFVec3f, "TexCoords")                                         \
    DO(GeoTexCoords4f, GeoTexCoords, MFVec4f, "TexCoords")                                         \
    DO(GeoTexCoords1d, GeoTexCoords, MFReal64, "TexCoords")                                        \
    DO(GeoTexCoords2d, GeoTexCoords, MFVec2d, "TexCoords")                                         \
    DO(GeoTexCoords3d, GeoTexCoords, MFVec3d, "TexCoords")                                         \
    DO(GeoTexCoords4d, GeoTexCoords, MFVec4d, "TexCoords")                                         \
    DO(GeoIndicesUI32, GeoIndices, MFUInt32, "indices")                                            \
    DO(GeoIndicesUI16, GeoIndices, MFUInt16, "indices")                                            \
    DO(GeoPLengthsUI32, GeoPLengths, MFUInt32, "lengths")                                          \
    DO(GeoPLengthsUI16, GeoPLengths, MFUInt16, "lengths")                                          \
    DO(GeoPLengthsUI8, GeoPLengths, MFUInt8, "lengths")                                            \
    DO(GeoPTypesUI8, GeoPTypes, MFUInt8, "types")

#define OSG_DECLARE_GEO_PROPERTY(Name, Base, FieldT, field)                                        \
    struct Name##Desc                                                                              \
    {                                                                                              \
        typedef Base Inherited;                                                                    \
        typedef FieldT FieldType;                                                                  \
        static const Char8 *getTypeName() { return #Name; }                                        \
        static const Char8 *getGroupName() { return #Base; }                                       \
        static const Char8 *getFieldName() { return field; }                                       \
    };                                                                                             \
    typedef GeoProperty<Name##Desc> Name;                                                          \
    typedef Name::PtrType Name##Ptr;                                                               \
    typedef RefPtr<Name##Ptr> Name##RefPtr;                                                        \
    extern template class GeoProperty<Name##Desc>;

OSG_GEO_PROPERTIES(OSG_DECLARE_GEO_PROPERTY)

OSG_END_NAMESPACE
