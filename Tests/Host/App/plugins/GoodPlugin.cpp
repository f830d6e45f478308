#include <kavoModuleBase.h>

#include <OpenSG/OSGAttachment.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>

OSG_BEGIN_NAMESPACE

class GoodMark;
typedef FCPtr<AttachmentPtr, GoodMark> GoodMarkPtr;

// A container type that a plug-in adds.
class GoodMark : public Attachment
{
    typedef Attachment Inherited;

public:
    typedef GoodMarkPtr Ptr;
    OSG_FIELD_CONTAINER_DECL(GoodMarkPtr)

    void dump(UInt32, const BitVector) const override { }

protected:
    GoodMark() = default;
    GoodMark(const GoodMark &source)
        : Inherited(source)
    {
    }
    ~GoodMark() override = default;
    void executeSync(FieldContainer &, const BitVector &) override { }

private:
    friend class FieldContainer;
    static FieldContainerType _type;
};

FieldContainerType GoodMark::_type("GoodMark", "Attachment", nullptr,
    []() -> FieldContainerPtr { return GoodMark::createEmpty(); });

OSG_FIELD_CONTAINER_INL_DEF(GoodMark, GoodMarkPtr)
OSG_FIELD_CONTAINER_DEF(GoodMark, GoodMarkPtr)

OSG_END_NAMESPACE

namespace {

class GoodModule : public kavoModuleBase
{
public:
    GoodModule()
        : kavoModuleBase("Good Module", "Test", 0)
    {
    }
};

} // namespace

extern "C" __attribute__((visibility("default"))) void initPlugin()
{
    static const GoodModule module;
}
