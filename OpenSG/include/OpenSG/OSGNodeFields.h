#pragma once

#include <OpenSG/OSGBasicHandleTraits.h>
#include <OpenSG/OSGMField.h>
#include <OpenSG/OSGNodePtr.h>
#include <OpenSG/OSGRefPtr.h>
#include <OpenSG/OSGSField.h>

OSG_BEGIN_NAMESPACE

typedef RefPtr<NodePtr> NodeRefPtr;

template <> struct FieldDataTraits<NodePtr> : public BasicHandleTraits<NodePtr>
{
    static DataType _type;
    enum { bHasParent = 0x01 };

    static DataType &getType() { return _type; }
    static const Char8 *getSName() { return "SFNodePtr"; }
    static const Char8 *getMName() { return "MFNodePtr"; }
};

typedef SField<NodePtr> SFNodePtr;
typedef MField<NodePtr> MFNodePtr;

OSG_END_NAMESPACE
