#pragma once

#include <OpenSG/OSGFieldContainerPtrBase.h>

#include <iosfwd>
#include <string>

OSG_BEGIN_NAMESPACE

class DataType;
class FieldContainerType;

/// Handle to a container of any type.
class FieldContainerPtr : public FieldContainerPtrBase
{
public:
    typedef FieldContainer StoredObjectType;
    typedef FieldContainerPtr ObjectType;
    typedef FieldContainerPtrBase Inherited;

    constexpr FieldContainerPtr() = default;
    constexpr FieldContainerPtr(const NullFieldContainerPtr &) { }
    constexpr FieldContainerPtr(const FieldContainerPtr &) = default;

    FieldContainer *operator->() const { return getBaseCPtr(); }
    FieldContainer &operator*() const { return *getBaseCPtr(); }
    FieldContainer *getCPtr() const { return getBaseCPtr(); }

    void operator=(const NullFieldContainerPtr &null) { Inherited::operator=(null); }
    void operator=(const FieldContainerPtr &other) { Inherited::operator=(other); }

    /// The global ignore-change switch. While it is set, endEditCP and changedCP do not call
    /// changed(). Change lists still get their entries.
    static void setIgnoreChanged(bool ignore);
    static bool isIgnoreChanged();

protected:
    friend class FieldContainer;
    friend void beginEditCP(const FieldContainerPtr &, BitVector, UInt32);
    friend void endEditCP(const FieldContainerPtr &, BitVector, UInt32);
    friend void changedCP(const FieldContainerPtr &, BitVector, UInt32);
    friend void endEditNotChangedCP(const FieldContainerPtr &, BitVector, UInt32);

    explicit FieldContainerPtr(const FieldContainer &container)
        : Inherited(&container)
    {
    }
    explicit FieldContainerPtr(const FieldContainer *container)
        : Inherited(container)
    {
    }

    void beginEdit(BitVector, UInt32) const { }
    void endEdit(BitVector whichField, UInt32 origin) const;
    void changed(BitVector whichField, UInt32 origin) const;
    void endEditNotChanged(BitVector whichField, UInt32 origin) const;
};

/// Type of NullFC. All handles convert from NullFC and compare with it.
class NullFieldContainerPtr : public FieldContainerPtr
{
public:
    typedef FieldContainerPtr Inherited;

    constexpr NullFieldContainerPtr() = default;
};

extern const NullFieldContainerPtr NullFC;
#define OSGNullFC osg::NullFC

/// The begin and the end of an edit. The begin does nothing. The end adds the change to the change
/// list of the thread and then calls FieldContainer::changed. Null handles are ignored.
inline void beginEditCP(const FieldContainerPtr &handle,
    BitVector whichField = FieldBits::AllFields, UInt32 origin = ChangedOrigin::External)
{
    handle.beginEdit(whichField, origin);
}

inline void endEditCP(const FieldContainerPtr &handle, BitVector whichField = FieldBits::AllFields,
    UInt32 origin = ChangedOrigin::External)
{
    handle.endEdit(whichField, origin);
}

/// Only calls FieldContainer::changed.
inline void changedCP(const FieldContainerPtr &handle, BitVector whichField = FieldBits::AllFields,
    UInt32 origin = ChangedOrigin::External)
{
    handle.changed(whichField, origin);
}

/// Only adds the change to the change list.
inline void endEditNotChangedCP(const FieldContainerPtr &handle,
    BitVector whichField = FieldBits::AllFields, UInt32 origin = ChangedOrigin::External)
{
    handle.endEditNotChanged(whichField, origin);
}

/// An edit for the life of a scope.
class CPEditor
{
public:
    CPEditor() = default;
    CPEditor(const FieldContainerPtr fc, const BitVector mask = FieldBits::AllFields)
        : _container(fc)
        , _mask(mask)
    {
        beginEditCP(_container, _mask);
    }
    ~CPEditor() { endEditCP(_container, _mask); }

    CPEditor(const CPEditor &) = delete;
    CPEditor &operator=(const CPEditor &) = delete;

private:
    FieldContainerPtr _container;
    BitVector _mask = FieldBits::NoField;
};

#define CPEdit(fc, mask) osg::CPEditor CPEdit_##fc(fc, mask)
#define CPEditAll(fc) osg::CPEditor CPEdit_##fc(fc)

/// Writes kind, address and target: `NodePtr 0x..:NodePtr(0x..)`, `FieldContainerPtr 0x..:NullFC`.
std::ostream &operator<<(std::ostream &os, const FieldContainerPtr &handle);

namespace HandleText {

std::ostream &write(std::ostream &os, const Char8 *kind, const FieldContainerPtrBase &handle);
/// Returns the address of the container, in the form of %p in printf.
std::string address(const FieldContainerPtrBase &handle);
/// Returns whether handles of a content type may refer to containers of a type. The name of the
/// content type is that of a container type with "Ptr" appended.
bool leadsTo(const DataType &handle, const FieldContainerType &target);
/// Returns the container with this id, or null if handles of the content type may not refer to it.
FieldContainerPtr containerOf(UInt32 id, const DataType &handle);

} // namespace HandleText

OSG_END_NAMESPACE

#include <OpenSG/OSGConstFCPtr.h>
#include <OpenSG/OSGFCPtr.h>
