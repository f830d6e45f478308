#pragma once

#include <OpenSG/OSGAttachmentBase.h>

OSG_BEGIN_NAMESPACE

/// A container that is hung on attachment containers and knows them as its parents. An internal
/// attachment is left out of scene files. addAttachment and subAttachment keep the parents.
class Attachment : public AttachmentBase
{
    typedef AttachmentBase Inherited;

public:
    /// Appends, respectively removes the first entry of, a parent.
    void addParent(FieldContainerPtr parent);
    void subParent(FieldContainerPtr parent);
    /// Index of the parent; -1 if it is none.
    Int32 findParent(FieldContainerPtr parent) const;

    /// The field itself.
    SFBool &getInternal() { return _sfInternal; }
    const SFBool &getInternal() const { return _sfInternal; }
    void setInternal(bool internal) { _sfInternal.setValue(internal); }

protected:
    friend class FieldContainer;

    Attachment() = default;
    /// The copy hangs nowhere yet.
    Attachment(const Attachment &source);
    ~Attachment() override = default;

private:
    BitVector getMutualFields() const override { return ParentsFieldMask; }
};

OSG_END_NAMESPACE
