#pragma once

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
#include <OpenSG/OSGSFBaseTypes.h>

#include <stdexcept>

OSG_BEGIN_NAMESPACE

class ThrowingMark;
typedef FCPtr<AttachmentPtr, ThrowingMark> ThrowingMarkPtr;

/// A faulty attachment type, as a plug-in may register it: its field "text" throws when it is
/// written or read. It throws an int instead of a std::exception if its text says so.
class ThrowingMark : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef ThrowingMarkPtr Ptr;

    OSG_FC_FIRST_FIELD_IDM_DECL(TextField)
    OSG_FC_LAST_FIELD_IDM_DECL(TextField)

    OSG_FIELD_CONTAINER_DECL(ThrowingMarkPtr)

    SFString *getSFText() { return &_sfText; }

    void dump(UInt32, const BitVector) const override { }

protected:
    ThrowingMark() = default;
    ThrowingMark(const ThrowingMark &source);
    ~ThrowingMark() override = default;

    void executeSync(FieldContainer &, const BitVector &) override { }

private:
    class ThrowingField : public SFString
    {
    public:
        void pushValueByStr(const Char8 *text) override
        {
            SFString::pushValueByStr(text);
            if (getValue() == "1 when read")
                throw 1;
            if (getValue() != "1 when written")
                throw std::runtime_error("no reading");
        }
        std::string &getValueByStr(std::string &) const override { fail(); }
        std::string &getValueByStr(std::string &, StringConversionStateBase &) const override
        {
            fail();
        }

    private:
        [[noreturn]] void fail() const
        {
            if (getValue() == "1 when written")
                throw 1;
            throw std::runtime_error("no writing");
        }
    };

    friend class FieldContainer;
    static FieldDescription *_desc[];
    static FieldContainerType _type;

    ThrowingField _sfText;

    void operator=(const ThrowingMark &) = delete;
};

OSG_FIELD_CONTAINER_INL_DEF(ThrowingMark, ThrowingMarkPtr)

OSG_END_NAMESPACE
