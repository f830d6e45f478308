#include <OpenSG/OSGChangeList.h>

#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

namespace {

bool readWriteByDefault = false;

template <class T> void append(std::vector<T> &target, const std::vector<T> &source)
{
    target.insert(target.end(), source.begin(), source.end());
}

void dumpIds(const Char8 *title, const std::vector<UInt32> &ids)
{
    osgLog() << title << ':';
    for (const UInt32 id : ids) {
        osgLog() << ' ' << id;
    }
    osgLog() << endLog;
}

} // namespace

ChangeList::ChangeList()
    : _readOnly(!readWriteByDefault)
{
}

void ChangeList::setReadWriteDefault(bool bReadWrite)
{
    if (GlobalSystemState != Startup) {
        SWARNING << "ChangeList::setReadWriteDefault has no effect after osgInit" << endLog;
        return;
    }
    readWriteByDefault = bReadWrite;
}

void ChangeList::addChanged(const FieldContainerPtr &container, BitVector whichField)
{
    if (!_readOnly) {
        _changed.emplace_back(container.getFieldContainerId(), whichField);
    }
}

void ChangeList::addAddRefd(const FieldContainerPtr &container)
{
    addAddRefd(container.getFieldContainerId());
}

void ChangeList::addSubRefd(const FieldContainerPtr &container)
{
    addSubRefd(container.getFieldContainerId());
}

void ChangeList::addId(std::vector<UInt32> &ids, UInt32 id)
{
    if (!_readOnly) {
        ids.push_back(id);
    }
}

void ChangeList::clearAll()
{
    _changed.clear();
    for (std::vector<UInt32> *ids : { &_addRefd, &_subRefd, &_created, &_destroyed }) {
        ids->clear();
    }
}

void ChangeList::swap(ChangeList &other)
{
    _changed.swap(other._changed);
    _addRefd.swap(other._addRefd);
    _subRefd.swap(other._subRefd);
    _created.swap(other._created);
    _destroyed.swap(other._destroyed);
}

bool ChangeList::merge(const ChangeList &other)
{
    if (_readOnly) {
        return false;
    }
    append(_changed, other._changed);
    append(_addRefd, other._addRefd);
    append(_subRefd, other._subRefd);
    append(_created, other._created);
    append(_destroyed, other._destroyed);
    return true;
}

bool ChangeList::empty() const
{
    return _changed.empty() && _addRefd.empty() && _subRefd.empty() && _created.empty()
        && _destroyed.empty();
}

void ChangeList::dump() const
{
    osgLog() << "changed:";
    for (const auto &[id, mask] : _changed) {
        osgLog() << ' ' << id << '/' << std::hex << mask << std::dec;
    }
    osgLog() << endLog;
    dumpIds("referenced", _addRefd);
    dumpIds("released", _subRefd);
    dumpIds("created", _created);
    dumpIds("destroyed", _destroyed);
}

OSG_END_NAMESPACE
