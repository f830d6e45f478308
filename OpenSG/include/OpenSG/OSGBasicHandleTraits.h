#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldDataType.h>

OSG_BEGIN_NAMESPACE

/// Traits of the five handles at the top of the class tree. Their text is the address; it is
/// written but not read. Their binary form is the id of the container. The id of a container of
/// another class is read as null.
template <class PtrT> struct BasicHandleTraits : public FieldTraits
{
    typedef const PtrT &ArgumentType;
    enum { StringConvertable = ToStringConvertable };

    static void putToString(const PtrT &inVal, std::string &outStr)
    {
        outStr = HandleText::address(inVal);
    }
    static PtrT getDefault() { return NullFC; }

    static UInt32 getBinSize(const FieldContainerPtrBase &) { return sizeof(UInt32); }
    static UInt32 getBinSize(const PtrT *, UInt32 count) { return count * sizeof(UInt32); }
    static void copyToBin(BinaryDataHandler &target, const FieldContainerPtrBase &object)
    {
        target.putValue(object.getFieldContainerId());
    }
    static void copyToBin(BinaryDataHandler &target, const PtrT *objects, UInt32 count)
    {
        for (UInt32 i = 0; i < count; ++i) {
            copyToBin(target, objects[i]);
        }
    }
    template <class HandleT> static void copyFromBin(BinaryDataHandler &source, HandleT &object)
    {
        UInt32 id = 0;
        source.getValue(id);
        FieldContainerPtrBase &handle = object;
        handle = HandleText::containerOf(id, FieldDataTraits<HandleT>::getType());
    }
    static void copyFromBin(BinaryDataHandler &source, PtrT *objects, UInt32 count)
    {
        for (UInt32 i = 0; i < count; ++i) {
            copyFromBin(source, objects[i]);
        }
    }
};

OSG_END_NAMESPACE
