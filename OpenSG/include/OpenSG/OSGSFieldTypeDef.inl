#pragma once

#include <OpenSG/OSGSField.h>

/// Defines and registers the field type of SField<Type, nameSpace>. Use it in exactly one
/// translation unit for each type, inside namespace osg.
#define OSG_DLLEXPORT_SFIELD_DEF2(Type, nameSpace, mapping)                                        \
    template <>                                                                                    \
    FieldType SField<Type, nameSpace>::_fieldType(                                                 \
        FieldTraitsSelector<Type, nameSpace>::Traits::getSName(),                                  \
        FieldTraitsSelector<Type, nameSpace>::Traits::getPName(),                                  \
        FieldTraitsSelector<Type, nameSpace>::Traits::getType(), &SField<Type, nameSpace>::create, \
        FieldType::SINGLE_FIELD)

#define OSG_DLLEXPORT_SFIELD_DEF1(Type, mapping) OSG_DLLEXPORT_SFIELD_DEF2(Type, 0, mapping)
