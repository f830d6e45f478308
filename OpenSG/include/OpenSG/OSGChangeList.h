#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>
#include <OpenSG/OSGMemoryObject.h>

#include <cstddef>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

/// The changes of containers on a thread since the list was last cleared. Entries are in order and
/// never merged. By default a list is read-only, which means that no entries are added.
class ChangeList : public MemoryObject
{
public:
    /// Container id and mask of the changed fields.
    typedef std::pair<UInt32, BitVector> ChangeEntry;
    typedef std::vector<ChangeEntry>::const_iterator changed_const_iterator;
    typedef std::vector<UInt32>::const_iterator refd_const_iterator;
    typedef std::vector<UInt32>::const_iterator idrefd_const_iterator;
    typedef std::size_t changed_size_type;
    typedef std::size_t refd_size_type;
    typedef std::size_t idrefd_size_type;

    ChangeList();

    changed_size_type sizeChanged() const { return _changed.size(); }
    changed_const_iterator beginChanged() const { return _changed.begin(); }
    changed_const_iterator endChanged() const { return _changed.end(); }

    refd_size_type sizeAddRefd() const { return _addRefd.size(); }
    refd_const_iterator beginAddRefd() const { return _addRefd.begin(); }
    refd_const_iterator endAddRefd() const { return _addRefd.end(); }

    /// Leaves out references with whose end the container was destroyed.
    refd_size_type sizeSubRefd() const { return _subRefd.size(); }
    refd_const_iterator beginSubRefd() const { return _subRefd.begin(); }
    refd_const_iterator endSubRefd() const { return _subRefd.end(); }

    idrefd_size_type sizeCreated() const { return _created.size(); }
    idrefd_const_iterator beginCreated() const { return _created.begin(); }
    idrefd_const_iterator endCreated() const { return _created.end(); }

    idrefd_size_type sizeDestroyed() const { return _destroyed.size(); }
    idrefd_const_iterator beginDestroyed() const { return _destroyed.begin(); }
    idrefd_const_iterator endDestroyed() const { return _destroyed.end(); }

    void addChanged(const FieldContainerPtr &container, BitVector whichField);
    void addAddRefd(const FieldContainerPtr &container);
    void addSubRefd(const FieldContainerPtr &container);
    void addAddRefd(const UInt32 id) { addId(_addRefd, id); }
    void addSubRefd(const UInt32 id) { addId(_subRefd, id); }
    void addCreated(const UInt32 id) { addId(_created, id); }
    void addDestroyed(const UInt32 id) { addId(_destroyed, id); }

    void clearAll();
    void swap(ChangeList &other);
    /// Appends the entries of another list. Returns false for a read-only list.
    bool merge(const ChangeList &other);
    bool empty() const;

    void setAspect(UInt32 aspect) { _aspect = aspect; }
    UInt32 getAspect() const { return _aspect; }
    void setReadOnly(bool readOnly) { _readOnly = readOnly; }
    /// Sets whether new lists are read-only. Has no effect after osgInit.
    static void setReadWriteDefault(bool bReadWrite = true);

    /// Applies the changes to the aspect of the thread. There is only one aspect, so nothing is
    /// done.
    void apply() { }
    void applyAndClear() { clearAll(); }
    /// Writes the entries to the log.
    void dump() const;

protected:
    ~ChangeList() override = default;

private:
    void addId(std::vector<UInt32> &ids, UInt32 id);

    std::vector<ChangeEntry> _changed;
    std::vector<UInt32> _addRefd;
    std::vector<UInt32> _subRefd;
    std::vector<UInt32> _created;
    std::vector<UInt32> _destroyed;
    UInt32 _aspect = 0;
    bool _readOnly;
};

OSG_END_NAMESPACE
