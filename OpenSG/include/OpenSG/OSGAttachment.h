#pragma once

#include <OpenSG/OSGAttachmentBase.h>

OSG_BEGIN_NAMESPACE

/// A container that is attached to attachment containers, its parents. Internal attachments are not
/// written to scene files. AttachmentContainer::addAttachment and subAttachment update the parents.
class Attachment : public AttachmentBase
{
    typedef AttachmentBase Inherited;

public:
    void addParent(FieldContainerPtr parent);
    /// Removes the first entry of the parent.
    void subParent(FieldContainerPtr parent);
    /// Returns the index of the parent, or -1 if there is no such parent.
    Int32 findParent(FieldContainerPtr parent) const;

    /// Returns the field, not its value.
    SFBool &getInternal() { return _sfInternal; }
    const SFBool &getInternal() const { return _sfInternal; }
    void setInternal(bool internal) { _sfInternal.setValue(internal); }

protected:
    friend class FieldContainer;

    Attachment() = default;
    /// The copy has no parents.
    Attachment(const Attachment &source);
    ~Attachment() override = default;

private:
    BitVector getMutualFields() const override { return ParentsFieldMask; }
};

OSG_END_NAMESPACE
