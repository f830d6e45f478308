#include <OpenSG/OSGFieldContainerPtr.h>

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGThread.h>

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <string_view>

OSG_BEGIN_NAMESPACE

const NullFieldContainerPtr NullFC;

namespace {

bool changesIgnored = false;

}

void FieldContainerPtr::setIgnoreChanged(bool ignore)
{
    changesIgnored = ignore;
}

bool FieldContainerPtr::isIgnoreChanged()
{
    return changesIgnored;
}

void FieldContainerPtr::endEdit(BitVector whichField, UInt32 origin) const
{
    endEditNotChanged(whichField, origin);
    changed(whichField, origin);
}

void FieldContainerPtr::changed(BitVector whichField, UInt32 origin) const
{
    if (getCPtr() && !changesIgnored) {
        getCPtr()->changed(whichField, origin);
    }
}

void FieldContainerPtr::endEditNotChanged(BitVector whichField, UInt32) const
{
    ChangeList *changes = getCPtr() ? Thread::getCurrentChangeList() : nullptr;
    if (changes) {
        changes->addChanged(*this, whichField);
    }
}

std::ostream &HandleText::write(
    std::ostream &os, const Char8 *kind, const FieldContainerPtrBase &handle)
{
    os << kind << ' ' << static_cast<const void *>(&handle) << ':';
    if (!handle) {
        return os << "NullFC";
    }
    const FieldContainer *container = handle.getBaseCPtr();
    return os << container->getTypeName() << "Ptr(" << static_cast<const void *>(container) << ')';
}

std::string HandleText::address(const FieldContainerPtrBase &handle)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%p", static_cast<const void *>(handle.getBaseCPtr()));
    return text;
}

bool HandleText::leadsTo(const DataType &handle, const FieldContainerType &target)
{
    constexpr std::string_view suffix = "Ptr";
    std::string name = handle.getCName();
    const std::size_t end = name.size() - std::min(name.size(), suffix.size());
    if (name.compare(end, suffix.size(), suffix) != 0) {
        return false;
    }
    const FieldContainerType *type
        = FieldContainerFactory::the()->findType(name.erase(end).c_str());
    return type && target.isDerivedFrom(*type);
}

FieldContainerPtr HandleText::containerOf(UInt32 id, const DataType &handle)
{
    const FieldContainerPtr container = FieldContainerFactory::the()->getContainer(id);
    return container && leadsTo(handle, container->getType()) ? container : FieldContainerPtr();
}

std::ostream &operator<<(std::ostream &os, const FieldContainerPtr &handle)
{
    return HandleText::write(os, "FieldContainerPtr", handle);
}

OSG_END_NAMESPACE
