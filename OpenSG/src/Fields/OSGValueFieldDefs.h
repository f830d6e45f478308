#pragma once

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

/// Defines the content type, the two field types and the code of the two fields for a row of
/// OSGValueFieldTypes.h.
#define OSG_VALUE_DEFINITION(Type, nameSpace, Name, contentName, parentName, Base)                 \
    DataType FieldTraitsSelector<Type, nameSpace>::Traits::_type(contentName, parentName);         \
    OSG_DLLEXPORT_SFIELD_DEF2(Type, nameSpace, );                                                  \
    OSG_DLLEXPORT_MFIELD_DEF2(Type, nameSpace, );                                                  \
    template class SField<Type, nameSpace>;                                                        \
    template class MField<Type, nameSpace>;
