#pragma once

#include <OpenSG/OSGBasicHandleTraits.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

template <> struct FieldDataTraits<FieldContainerPtr> : public BasicHandleTraits<FieldContainerPtr>
{
    static DataType _type;

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFFieldContainerPtr"; }
    static const Char8 *getMName() { return "MFFieldContainerPtr"; }
};

typedef SField<FieldContainerPtr> SFFieldContainerPtr;
typedef MField<FieldContainerPtr> MFFieldContainerPtr;

OSG_END_NAMESPACE
