#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGFieldContainerType.h>

#include <cstddef>
#include <functional>

OSG_BEGIN_NAMESPACE

class BinaryDataHandler;
class Field;

/// Base of all classes with described fields: nodes, cores, attachments, materials, images. The
/// create() of a class makes a container. Handles refer to it. It is destroyed with its last
/// reference; nobody owns it in another way.
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
    /// Derived classes do not redefine this. The result is always the group of FieldContainer.
    static UInt16 getClassGroupId();

    virtual FieldContainerType &getType();
    virtual const FieldContainerType &getType() const;
    UInt32 getTypeId() const { return getType().getId(); }
    UInt16 getGroupId() const { return getType().getGroupId(); }
    const Char8 *getTypeName() const { return getType().getCName(); }

    /// Returns the size of the most derived class in bytes.
    virtual UInt32 getContainerSize() const = 0;

    /// Returns the field with this id or name, or NULL if there is none.
    Field *getField(UInt32 fieldId);
    Field *getField(const Char8 *fieldName);

    /// Creates a container with the same field values. It shares the nodes and attachments that its
    /// fields point to.
    virtual FieldContainerPtr shallowCopy() const = 0;

    /// Called at the end of an edit. Classes override it to update data that depends on fields.
    virtual void changed(BitVector whichField, UInt32 origin);

    /// Binary form of the masked fields, in the order of their ids. Readers must use the mask of
    /// the writer. A pointer is written as the id of its container. It is read as null if that
    /// container does not exist or has another class. Attachments, and the pointers between nodes,
    /// cores and attachments, are not written. After reading, end the edit to update dependent
    /// data.
    virtual UInt32 getBinSize(const BitVector &whichField);
    virtual void copyToBin(BinaryDataHandler &target, const BitVector &whichField);
    virtual void copyFromBin(BinaryDataHandler &source, const BitVector &whichField);

    /// Writes type, id and the text of every field to the log.
    virtual void dump(UInt32 uiIndent = 0, const BitVector bvFlags = 0) const;

    // A header in front of the object holds its reference count and id.
    static void *operator new(std::size_t size);
    static void operator delete(void *container);

protected:
    FieldContainer() = default;
    FieldContainer(const FieldContainer &);
    virtual ~FieldContainer() = default;
    FieldContainer &operator=(const FieldContainer &) = delete;

    /// Creates a container and enters it in the store. It is a copy of `prototypeP` if that is
    /// given.
    template <class PtrT>
    static void newPtr(PtrT &result, const typename PtrT::StoredObjectType *prototypeP);
    template <class PtrT> static void newPtr(PtrT &result);

    /// The usual body of create(). Returns a copy of the type's prototype, or null if there is
    /// none.
    template <class PtrT> static PtrT copyPrototype(const FieldContainerType &type);

    /// Called once for every new container, when it has its id. Derived classes hide it with their
    /// own function.
    void onCreate(const FieldContainer * = nullptr) { }
    void onCreateAspect(const FieldContainer *, const FieldContainer * = nullptr) { }
    /// Called after the last reference was dropped, before the destructors.
    virtual void onDestroy() { }

    typedef std::function<void(const FieldContainerPtr &)> HeldFunction;
    /// Calls `function` once for every reference that this container holds to another one. Classes
    /// should override it if they hold references. Otherwise these count as references of clients.
    virtual void forEachHeld(const HeldFunction &) const { }

    /// Copies the masked fields of another container of the same type.
    virtual void executeSync(FieldContainer &other, const BitVector &whichField);
    void executeSyncImpl(FieldContainer *pOther, const BitVector &whichField);

private:
    friend class TemporaryReferences;
    friend class FieldContainerPtrBase;
    friend void addRefCP(const FieldContainerPtrBase &handle);
    friend void subRefCP(const FieldContainerPtrBase &handle);

    struct Header;
    Header &header();
    template <class Function> void forEachField(BitVector whichField, const Function &function);
    static void enterInStore(const FieldContainerPtr &container);
    void destroy();
    void destroyNow();
    /// The fields whose targets have a pointer back to this container. Only methods may set them.
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
