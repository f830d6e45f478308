#pragma once

#include <OpenSG/OSGFieldDataType.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGParticleBSPTree.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

/// The text is the count of nodes, a semicolon and the nodes.
template <> struct FieldDataTraits<ParticleBSPTree> : public FieldTraitsRecurseBase<ParticleBSPTree>
{
    static DataType _type;
    enum { StringConvertable = ToStringConvertable | FromStringConvertable };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFParticleBSPTree"; }
    static const Char8 *getMName() { return "MFParticleBSPTree"; }

    static bool getFromString(ParticleBSPTree &, const Char8 *&) { return true; }
    static void putToString(const ParticleBSPTree &, std::string &outStr) { outStr = "0;"; }
    static ParticleBSPTree getDefault() { return ParticleBSPTree(); }
};

typedef SField<ParticleBSPTree> SFParticleBSPTree;
typedef MField<ParticleBSPTree> MFParticleBSPTree;

OSG_END_NAMESPACE
