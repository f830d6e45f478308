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

    /// The global ignore-change switch: while it is set, endEditCP and changedCP do not call
    /// changed(). Change lists are filled all the same.
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

/// Type of NullFC, the one null object that every handle converts from and compares with.
class NullFieldContainerPtr : public FieldContainerPtr
{
public:
    typedef FieldContainerPtr Inherited;

    constexpr NullFieldContainerPtr() = default;
};

extern const NullFieldContainerPtr NullFC;
#define OSGNullFC osg::NullFC

/// Brackets of an edit. Nothing happens at the beginning; the end enters the change in the
/// thread's change list and then lets the container follow it (FieldContainer::changed). Null
/// handles are ignored.
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

/// Only lets the container follow.
inline void changedCP(const FieldContainerPtr &handle, BitVector whichField = FieldBits::AllFields,
    UInt32 origin = ChangedOrigin::External)
{
    handle.changed(whichField, origin);
}

/// Only enters the change in the change list.
inline void endEditNotChangedCP(const FieldContainerPtr &handle,
    BitVector whichField = FieldBits::AllFields, UInt32 origin = ChangedOrigin::External)
{
    handle.endEditNotChanged(whichField, origin);
}

/// Keeps an edit open for the life of a scope.
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
/// The container's address as printf's %p has it.
std::string address(const FieldContainerPtrBase &handle);
/// Whether handles of a content type may refer to containers of a type: the content type is called
/// after a container type, with "Ptr" behind it.
bool leadsTo(const DataType &handle, const FieldContainerType &target);
/// The container with this id; null if handles of the content type may not refer to it.
FieldContainerPtr containerOf(UInt32 id, const DataType &handle);

} // namespace HandleText

OSG_END_NAMESPACE

#include <OpenSG/OSGConstFCPtr.h>
#include <OpenSG/OSGFCPtr.h>
