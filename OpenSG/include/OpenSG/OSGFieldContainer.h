#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>

#include <cstddef>
#include <functional>

OSG_BEGIN_NAMESPACE

class BinaryDataHandler;
class Field;

/// Base of everything that consists of described fields and lives in the container store: nodes,
/// cores, attachments, materials, images. Containers are made by their class's create(), held
/// by handles and destroyed with their last reference; there is no other way to own one.
class FieldContainer
{
public:
    typedef FieldContainerPtr Ptr;

    enum { NextFieldId = 1 };
    static constexpr BitVector NextFieldMask = BitVector(1) << NextFieldId;
    static constexpr BitVector MTInfluenceMask = FieldBits::NoField;
    static constexpr bool isNodeCore = false;

    static FieldContainerType &getClassType();
    static UInt32 getClassTypeId();
    /// Not redefined by derived classes: always the group of FieldContainer itself.
    static UInt16 getClassGroupId();

    virtual FieldContainerType &getType();
    virtual const FieldContainerType &getType() const;
    UInt32 getTypeId() const { return getType().getId(); }
    UInt16 getGroupId() const { return getType().getGroupId(); }
    const Char8 *getTypeName() const { return getType().getCName(); }

    /// Size in bytes of the most derived class.
    virtual UInt32 getContainerSize() const = 0;

    /// The field with this id or name; NULL if there is none.
    Field *getField(UInt32 fieldId);
    Field *getField(const Char8 *fieldName);

    /// A new container with the same field values. Nodes and attachments that it points to are
    /// shared.
    virtual FieldContainerPtr shallowCopy() const = 0;

    /// Called at the end of an edit: the place to bring derived data up to date.
    virtual void changed(BitVector whichField, UInt32 origin);

    /// Binary form of the masked fields, in the order of their ids; the same mask has to be given
    /// to write and to read it. A pointer is the id of its container, and null if that is none
    /// of its class when it is read. Left out are attachments, and what nodes, cores and
    /// attachments know of each other. Nothing follows what was read until the edit is ended.
    virtual UInt32 getBinSize(const BitVector &whichField);
    virtual void copyToBin(BinaryDataHandler &target, const BitVector &whichField);
    virtual void copyFromBin(BinaryDataHandler &source, const BitVector &whichField);

    /// Writes type, id and the text of every field to the log.
    virtual void dump(UInt32 uiIndent = 0, const BitVector bvFlags = 0) const;

    // Containers carry their reference count and id in a header in front of the object.
    static void *operator new(std::size_t size);
    static void operator delete(void *container);

protected:
    FieldContainer() = default;
    FieldContainer(const FieldContainer &);
    virtual ~FieldContainer() = default;
    FieldContainer &operator=(const FieldContainer &) = delete;

    /// Makes a container and enters it in the store; a copy if there is a prototype.
    template <class PtrT>
    static void newPtr(PtrT &result, const typename PtrT::StoredObjectType *prototypeP);
    template <class PtrT> static void newPtr(PtrT &result);

    /// The usual body of create(): a copy of the type's prototype, null if it has none.
    template <class PtrT> static PtrT copyPrototype(const FieldContainerType &type);

    /// Called once for every new container, after it has its id. A class hides it with its own.
    void onCreate(const FieldContainer * = nullptr) { }
    void onCreateAspect(const FieldContainer *, const FieldContainer * = nullptr) { }
    /// Called when the last reference has gone, before the destructors.
    virtual void onDestroy() { }

    typedef std::function<void(const FieldContainerPtr &)> HeldFunction;
    /// Calls `function` once for every reference that it holds to another container. References of
    /// classes that do not tell of them are taken for somebody else's.
    virtual void forEachHeld(const HeldFunction &) const { }

    /// Takes over the masked fields of another container of the same type.
    virtual void executeSync(FieldContainer &other, const BitVector &whichField);
    void executeSyncImpl(FieldContainer *pOther, const BitVector &whichField);

private:
    friend class ContainerKeeper;
    friend class FieldContainerPtrBase;
    friend void addRefCP(const FieldContainerPtrBase &handle);
    friend void subRefCP(const FieldContainerPtrBase &handle);

    struct Header;
    Header &header();
    template <class Function> void forEachField(BitVector whichField, const Function &function);
    static void enterInStore(const FieldContainerPtr &container);
    void destroy();
    void destroyNow();
    /// The fields whose containers know this one in return: only methods may set them.
    virtual BitVector getMutualFields() const { return FieldBits::NoField; }

    static FieldContainerType _type;
};

template <class PtrT>
void FieldContainer::newPtr(PtrT &result, const typename PtrT::StoredObjectType *prototypeP)
{
    typedef typename PtrT::StoredObjectType Stored;
    static_assert(alignof(Stored) <= alignof(std::max_align_t));

    result = PtrT(prototypeP ? new Stored(*prototypeP) : new Stored());
    enterInStore(result);
    result->onCreate(prototypeP);
}

template <class PtrT> void FieldContainer::newPtr(PtrT &result)
{
    newPtr(result, nullptr);
}

template <class PtrT> PtrT FieldContainer::copyPrototype(const FieldContainerType &type)
{
    const FieldContainerPtr prototype = type.getPrototype();
    return prototype ? PtrT::dcast(prototype->shallowCopy()) : PtrT();
}

OSG_END_NAMESPACE

#include <OpenSG/OSGFieldContainerMacros.h>
