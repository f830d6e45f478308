#include <OpenSG/OSGAttachment.h>

OSG_BEGIN_NAMESPACE

Attachment::Attachment(const Attachment &source)
    : Inherited(source)
{
    _mfParents.clear();
}

void Attachment::addParent(FieldContainerPtr parent)
{
    _mfParents.push_back(parent);
}

void Attachment::subParent(FieldContainerPtr parent)
{
    const auto found = _mfParents.find(parent);
    if (found != _mfParents.end()) {
        _mfParents.erase(found);
    }
}

Int32 Attachment::findParent(FieldContainerPtr parent) const
{
    const auto found = _mfParents.find(parent);
    return found != _mfParents.end() ? static_cast<Int32>(found - _mfParents.begin()) : -1;
}

OSG_END_NAMESPACE
