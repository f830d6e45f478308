#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNodeFields.h>

OSG_BEGIN_NAMESPACE

class AnimNodeBase;
typedef FCPtr<AttachmentPtr, AnimNodeBase> AnimNodeBasePtr;

/// Attachment that lists the nodes an animation moves. The nodes belong to the scene; the list
/// holds no references, or a node that is in a list of its own would never die.
///
/// It is an attachment and must not become a node core: a core's "parents" are a list of nodes too,
/// and who follows those of an animation comes round to it again.
class KAVO_SDK_EXPORT AnimNodeBase : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef AnimNodeBasePtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(NodesField)
    OSG_FC_LAST_FIELD_IDM_DECL(NodesField)

    OSG_FIELD_CONTAINER_DECL(AnimNodeBasePtr)

    MFNodePtr *getMFNodes() { return &_mfNodes; }
    MFNodePtr &getNodes() { return _mfNodes; }
    const MFNodePtr &getNodes() const { return _mfNodes; }

    void dump(UInt32 indent = 0, const BitVector flags = 0) const override;

protected:
    AnimNodeBase();
    AnimNodeBase(const AnimNodeBase &source);
    ~AnimNodeBase() override;

    void executeSync(FieldContainer &other, const BitVector &which) override;
    void executeSyncImpl(AnimNodeBase *other, const BitVector &which);

    MFNodePtr _mfNodes;

private:
    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    void operator=(const AnimNodeBase &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(AnimNodeBase, AnimNodeBasePtr)

OSG_END_NAMESPACE
