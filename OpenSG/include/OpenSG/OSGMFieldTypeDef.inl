#pragma once

#include <OpenSG/OSGMField.h>

/// Defines and registers the field type of MField<Type, nameSpace>. Use it in exactly one
/// translation unit for each type, inside namespace osg.
#define OSG_DLLEXPORT_MFIELD_DEF2(Type, nameSpace, mapping)                                        \
    template <>                                                                                    \
    FieldType MField<Type, nameSpace>::_fieldType(                                                 \
        FieldTraitsSelector<Type, nameSpace>::Traits::getMName(),                                  \
        FieldTraitsSelector<Type, nameSpace>::Traits::getPName(),                                  \
        FieldTraitsSelector<Type, nameSpace>::Traits::getType(), &MField<Type, nameSpace>::create, \
        FieldType::MULTI_FIELD)

#define OSG_DLLEXPORT_MFIELD_DEF1(Type, mapping) OSG_DLLEXPORT_MFIELD_DEF2(Type, 0, mapping)
