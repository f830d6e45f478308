#pragma once

/// Macros for container classes that are written by hand. In the class:
///   OSG_FC_FIRST_FIELD_IDM_DECL(AField)  OSG_FC_FIELD_IDM_DECL(BField, AField)
///   OSG_FC_LAST_FIELD_IDM_DECL(BField)   OSG_FIELD_CONTAINER_DECL(XPtr)
/// After the class, use the macros with _DEF instead of _DECL and the class as first argument.
/// OSG_FC_FIELD_IDM_DESC(AField) gives the id and the mask of a field for FieldDescription.

#define OSG_FC_FIRST_FIELD_IDM_DECL(FIELD)                                                         \
    enum { FIELD##Id = Inherited::NextFieldId };                                                   \
    static const osg::BitVector FIELD##Mask;

#define OSG_FC_FIELD_IDM_DECL(FIELD, PREVIOUS)                                                     \
    enum { FIELD##Id = PREVIOUS##Id + 1 };                                                         \
    static const osg::BitVector FIELD##Mask;

#define OSG_FC_LAST_FIELD_IDM_DECL(LAST)                                                           \
    enum { NextFieldId = LAST##Id + 1 };                                                           \
    static const osg::BitVector NextFieldMask;

#define OSG_FC_MASK_DEF(CLASS, NAME)                                                               \
    const osg::BitVector CLASS::NAME##Mask = osg::TypeTraits<osg::BitVector>::One                  \
        << CLASS::NAME##Id;

#define OSG_FC_FIRST_FIELD_IDM_DEF(CLASS, FIELD) OSG_FC_MASK_DEF(CLASS, FIELD)
#define OSG_FC_FIELD_IDM_DEF(CLASS, FIELD, PREVIOUS) OSG_FC_MASK_DEF(CLASS, FIELD)
#define OSG_FC_LAST_FIELD_IDM_DEF(CLASS, LAST) OSG_FC_MASK_DEF(CLASS, NextField)

#define OSG_FC_FIELD_IDM_DESC(FIELD) FIELD##Id, FIELD##Mask

#define OSG_ABSTR_FIELD_CONTAINER_DECL(PTR)                                                        \
    static osg::FieldContainerType &getClassType();                                                \
    static osg::UInt32 getClassTypeId();                                                           \
    virtual osg::FieldContainerType &getType();                                                    \
    virtual const osg::FieldContainerType &getType() const;                                        \
    virtual osg::UInt32 getContainerSize() const;

#define OSG_FIELD_CONTAINER_DECL(PTR)                                                              \
    OSG_ABSTR_FIELD_CONTAINER_DECL(PTR)                                                            \
    static PTR create();                                                                           \
    static PTR createEmpty();                                                                      \
    virtual osg::FieldContainerPtr shallowCopy() const;

#define OSG_ABSTR_FIELD_CONTAINER_INL_DEF(CLASS, PTR)                                              \
    inline osg::FieldContainerType &CLASS::getClassType()                                          \
    {                                                                                              \
        return _type;                                                                              \
    }                                                                                              \
    inline osg::UInt32 CLASS::getClassTypeId()                                                     \
    {                                                                                              \
        return _type.getId();                                                                      \
    }

#define OSG_FIELD_CONTAINER_INL_DEF(CLASS, PTR)                                                    \
    OSG_ABSTR_FIELD_CONTAINER_INL_DEF(CLASS, PTR)                                                  \
    inline PTR CLASS::create()                                                                     \
    {                                                                                              \
        return copyPrototype<PTR>(getClassType());                                                 \
    }                                                                                              \
    inline PTR CLASS::createEmpty()                                                                \
    {                                                                                              \
        PTR result;                                                                                \
        newPtr(result);                                                                            \
        return result;                                                                             \
    }

#define OSG_ABSTR_FIELD_CONTAINER_DEF(CLASS, PTR)                                                  \
    osg::FieldContainerType &CLASS::getType()                                                      \
    {                                                                                              \
        return _type;                                                                              \
    }                                                                                              \
    const osg::FieldContainerType &CLASS::getType() const                                          \
    {                                                                                              \
        return _type;                                                                              \
    }                                                                                              \
    osg::UInt32 CLASS::getContainerSize() const                                                    \
    {                                                                                              \
        return sizeof(CLASS);                                                                      \
    }

#define OSG_FIELD_CONTAINER_DEF(CLASS, PTR)                                                        \
    OSG_ABSTR_FIELD_CONTAINER_DEF(CLASS, PTR)                                                      \
    osg::FieldContainerPtr CLASS::shallowCopy() const                                              \
    {                                                                                              \
        PTR result;                                                                                \
        newPtr(result, this);                                                                      \
        return result;                                                                             \
    }
