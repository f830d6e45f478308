#include "OSGThrowingMark.h"

#include <OpenSG/OSGFieldDescription.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(ThrowingMark, TextField)
OSG_FC_LAST_FIELD_IDM_DEF(ThrowingMark, TextField)

FieldDescription *ThrowingMark::_desc[] = {
    new FieldDescription(SFString::getClassType(), "text",
        OSG_FC_FIELD_IDM_DESC(ThrowingMark::TextField), false,
        (FieldAccessMethod)&ThrowingMark::getSFText),
};

FieldContainerType ThrowingMark::_type(
    "ThrowingMark", "Attachment", nullptr,
    []() -> FieldContainerPtr { return ThrowingMark::createEmpty(); }, nullptr, ThrowingMark::_desc,
    sizeof(ThrowingMark::_desc));

OSG_FIELD_CONTAINER_DEF(ThrowingMark, ThrowingMarkPtr)

ThrowingMark::ThrowingMark(const ThrowingMark &source)
    : Inherited(source)
{
}

OSG_END_NAMESPACE
