#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldTable.h>
#include <OpenSG/OSGRefPtr.h>

OSG_BEGIN_NAMESPACE

/// An attachment with one field. DescT describes it:
///     typedef ... FieldTypeT;                     the field's type
///     static const Char8 *getTypeName();          also getFieldName, getGroupName and
///                                                 getParentTypeName
///     static InitContainerF getInitMethod();      NULL for none
///     static FieldDescription **getDesc();        NULL: the field is described by its name
/// Register the type with OSG_SIMPLE_ATTACHMENT_DEF(DescT) in one source, in namespace osg.
template <class DescT> class SimpleAttachment : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef FCPtr<AttachmentPtr, SimpleAttachment> PtrType;
    typedef PtrType Ptr;
    typedef typename DescT::FieldTypeT FieldTypeT;

    enum { SimpleFieldId = Inherited::NextFieldId, NextFieldId = SimpleFieldId + 1 };
    static constexpr BitVector SimpleFieldMask = TypeTraits<BitVector>::One << SimpleFieldId;
    static constexpr BitVector NextFieldMask = TypeTraits<BitVector>::One << NextFieldId;

    static FieldContainerType &getClassType() { return _type; }
    static UInt32 getClassTypeId() { return _type.getId(); }
    FieldContainerType &getType() override { return _type; }
    const FieldContainerType &getType() const override { return _type; }
    UInt32 getContainerSize() const override { return sizeof(SimpleAttachment); }

    static PtrType create() { return copyPrototype<PtrType>(getClassType()); }
    static PtrType createEmpty()
    {
        PtrType result;
        newPtr(result);
        return result;
    }
    FieldContainerPtr shallowCopy() const override
    {
        PtrType result;
        newPtr(result, this);
        return result;
    }

    FieldTypeT *getFieldPtr() { return &_field; }
    const FieldTypeT *getFieldPtr() const { return &_field; }
    /// Hides FieldContainer::getField. Use a handle of the base class for that.
    FieldTypeT &getField() { return _field; }
    const FieldTypeT &getField() const { return _field; }

protected:
    friend class FieldContainer;

    SimpleAttachment() = default;
    SimpleAttachment(const SimpleAttachment &) = default;
    ~SimpleAttachment() override = default;

    FieldTypeT _field;

private:
    static FieldDescription **fieldTable();

    static FieldContainerType _type;
};

template <class DescT> FieldDescription **SimpleAttachment<DescT>::fieldTable()
{
    static FieldDescription *table[] = { DescT::getDesc()
            ? *DescT::getDesc()
            : describe<&SimpleAttachment::_field>(DescT::getFieldName(), SimpleFieldId) };
    return table;
}

template <class DescT>
FieldContainerType SimpleAttachment<DescT>::_type(DescT::getTypeName(), DescT::getParentTypeName(),
    DescT::getGroupName(), prototypeOf<&SimpleAttachment::createEmpty>, DescT::getInitMethod(),
    fieldTable(), sizeof(FieldDescription *));

OSG_END_NAMESPACE
