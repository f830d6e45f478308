#include <OpenSG/OSGFieldContainerFields.h>

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<FieldContainerPtr>::_type("FieldContainerPtr", nullptr);
OSG_DLLEXPORT_SFIELD_DEF1(FieldContainerPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(FieldContainerPtr, );

OSG_END_NAMESPACE
