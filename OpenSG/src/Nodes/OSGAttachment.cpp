#include <OpenSG/OSGAttachment.h>

#include <algorithm>
#include <iterator>

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

// Searches from the back. An attachment may have very many parents, and scenes are destroyed from
// the back.
void Attachment::subParent(FieldContainerPtr parent)
{
    const auto found = std::find(_mfParents.rbegin(), _mfParents.rend(), parent);
    if (found != _mfParents.rend()) {
        _mfParents.erase(std::next(found).base());
    }
}

Int32 Attachment::findParent(FieldContainerPtr parent) const
{
    const auto found = _mfParents.find(parent);
    return found != _mfParents.end() ? static_cast<Int32>(found - _mfParents.begin()) : -1;
}

OSG_END_NAMESPACE
