#include <OpenSG/OSGAttachmentContainerFields.h>
#include <OpenSG/OSGAttachmentFields.h>
#include <OpenSG/OSGAttachmentMapFields.h>
#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGNodeCoreFields.h>
#include <OpenSG/OSGNodeFields.h>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<AttachmentContainerPtr>::_type(
    "AttachmentContainerPtr", "FieldContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(AttachmentContainerPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(AttachmentContainerPtr, );

DataType FieldDataTraits<AttachmentPtr>::_type("AttachmentPtr", "FieldContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(AttachmentPtr, );
OSG_DLLEXPORT_MFIELD_DEF1(AttachmentPtr, );

DataType FieldDataTraits<NodePtr>::_type("NodePtr", "AttachmentContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(NodePtr, );
OSG_DLLEXPORT_MFIELD_DEF1(NodePtr, );

DataType FieldDataTraits<NodeCorePtr>::_type("NodeCorePtr", "AttachmentContainerPtr");
OSG_DLLEXPORT_SFIELD_DEF1(NodeCorePtr, );
OSG_DLLEXPORT_MFIELD_DEF1(NodeCorePtr, );

DataType FieldDataTraits<AttachmentMap>::_type("AttachmentMap", nullptr);
OSG_DLLEXPORT_SFIELD_DEF1(AttachmentMap, );
OSG_DLLEXPORT_MFIELD_DEF1(AttachmentMap, );

OSG_END_NAMESPACE
