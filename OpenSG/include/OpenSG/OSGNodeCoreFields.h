#pragma once

#include <OpenSG/OSGBasicHandleTraits.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGNodeCorePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

typedef RefPtr<NodeCorePtr> NodeCoreRefPtr;

template <> struct FieldDataTraits<NodeCorePtr> : public BasicHandleTraits<NodeCorePtr>
{
    static DataType _type;
    enum { bHasParent = 0x01 };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFNodeCorePtr"; }
    static const Char8 *getMName() { return "MFNodeCorePtr"; }
};

typedef SField<NodeCorePtr> SFNodeCorePtr;
typedef MField<NodeCorePtr> MFNodeCorePtr;

OSG_END_NAMESPACE
