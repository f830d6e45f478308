#include <OpenSG/OSGParticleBSPTreeFields.h>

#include <OpenSG/OSGMFieldTypeDef.inl>
#include <OpenSG/OSGSFieldTypeDef.inl>

OSG_BEGIN_NAMESPACE

DataType FieldDataTraits<ParticleBSPTree>::_type("ParticleBSPTree", nullptr);
OSG_DLLEXPORT_SFIELD_DEF1(ParticleBSPTree, );
OSG_DLLEXPORT_MFIELD_DEF1(ParticleBSPTree, );

OSG_END_NAMESPACE
