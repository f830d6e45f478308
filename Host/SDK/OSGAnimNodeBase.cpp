#include <OSGAnimNodeBase.h>

#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(AnimNodeBase, NodesField)
OSG_FC_LAST_FIELD_IDM_DEF(AnimNodeBase, NodesField)

FieldDescription *AnimNodeBase::_desc[] = {
    new FieldDescription(MFNodePtr::getClassType(), "nodes",
        OSG_FC_FIELD_IDM_DESC(AnimNodeBase::NodesField), false,
        (FieldAccessMethod)&AnimNodeBase::getMFNodes),
};

FieldContainerType AnimNodeBase::_type(
    "AnimNodeBase", "Attachment", nullptr,
    []() -> FieldContainerPtr { return AnimNodeBase::createEmpty(); }, nullptr, AnimNodeBase::_desc,
    sizeof(AnimNodeBase::_desc));

OSG_FIELD_CONTAINER_DEF(AnimNodeBase, AnimNodeBasePtr)

AnimNodeBase::AnimNodeBase() = default;

AnimNodeBase::AnimNodeBase(const AnimNodeBase &source)
    : Inherited(source)
    , _mfNodes(source._mfNodes)
{
}

AnimNodeBase::~AnimNodeBase() = default;

void AnimNodeBase::dump(UInt32, const BitVector) const
{
    SLOG << "AnimNodeBase with " << _mfNodes.getSize() << " nodes" << endLog;
}

void AnimNodeBase::executeSync(FieldContainer &other, const BitVector &which)
{
    executeSyncImpl(static_cast<AnimNodeBase *>(&other), which);
}

void AnimNodeBase::executeSyncImpl(AnimNodeBase *other, const BitVector &which)
{
    Inherited::executeSyncImpl(other, which);
    if (which & NodesFieldMask)
        _mfNodes.syncWith(other->_mfNodes);
}

OSG_END_NAMESPACE
