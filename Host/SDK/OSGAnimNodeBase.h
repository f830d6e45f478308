#pragma once

#include <kavoSDKExport.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGNodeFields.h>

OSG_BEGIN_NAMESPACE

class AnimNodeBase;
typedef FCPtr<AttachmentPtr, AnimNodeBase> AnimNodeBasePtr;

/// Attachment that lists the nodes of an animation. The list holds no references: a node in a list
/// of its own attachment would never be destroyed.
///
/// This class must not become a node core. A core's "parents" is a list of nodes too, so following
/// the nodes of an animation would lead back to the core.
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
