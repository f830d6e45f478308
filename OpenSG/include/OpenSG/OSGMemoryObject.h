#pragma once

#include <OpenSG/OSGBaseTypes.h>

OSG_BEGIN_NAMESPACE

/// An object, other than a container, that counts its references. It is deleted with the last one.
class MemoryObject
{
public:
    MemoryObject(const MemoryObject &) = delete;
    MemoryObject &operator=(const MemoryObject &) = delete;

    Int32 getRefCount() const { return _refCount; }

protected:
    MemoryObject() = default;
    virtual ~MemoryObject() = default;

private:
    friend void addRefP(MemoryObject *object);
    friend void subRefP(MemoryObject *object);

    Int32 _refCount = 0;
};

/// NULL is ignored.
inline void addRefP(MemoryObject *object)
{
    if (object) {
        ++object->_refCount;
    }
}

inline void subRefP(MemoryObject *object)
{
    if (object && --object->_refCount <= 0) {
        delete object;
    }
}

OSG_END_NAMESPACE
