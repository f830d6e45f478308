#include "OSGManyFields.h"

#include <OpenSG/OSGFieldDescription.h>
#include <OpenSG/OSGLog.h>

OSG_BEGIN_NAMESPACE

OSG_FC_FIRST_FIELD_IDM_DEF(ManyFields, OwnField)

// There are more fields than bits in a mask, so several fields share a bit.
FieldDescription **ManyFields::describe()
{
    static std::array<FieldDescription *, fieldCount> descriptions;
    const FieldType *types[] = { &SFReal32::getClassType(), &SFInt32::getClassType(),
        &SFString::getClassType(), &SFVec3f::getClassType() };
    for (UInt32 i = 0; i < fieldCount; ++i) {
        const UInt32 id = OwnFieldId + i;
        const std::string name = "field" + std::to_string(i);
        descriptions[i] = new FieldDescription(*types[i % 4], name.c_str(), id,
            TypeTraits<BitVector>::One << (id % 64), false,
            (FieldIndexAccessMethod)&ManyFields::getOwnField);
    }
    return descriptions.data();
}

FieldContainerType ManyFields::_type(
    "ManyFields", "Attachment", nullptr,
    []() -> FieldContainerPtr { return ManyFields::createEmpty(); }, nullptr,
    ManyFields::describe(), fieldCount * sizeof(FieldDescription *));

OSG_FIELD_CONTAINER_DEF(ManyFields, ManyFieldsPtr)

Field *ManyFields::getOwnField(UInt32 id)
{
    const UInt32 i = (id - OwnFieldId) / 4;
    Field *const fields[] = { &_sfReals[i], &_sfIntegers[i], &_sfTexts[i], &_sfVectors[i] };
    return fields[(id - OwnFieldId) % 4];
}

ManyFields::ManyFields()
{
    for (UInt32 i = 0; i < fieldCount / 4; ++i) {
        _sfReals[i].setValue(Real32(i) + 0.25f);
        _sfIntegers[i].setValue(Int32(i));
        _sfTexts[i].setValue("Text " + std::to_string(i));
        _sfVectors[i].setValue(Vec3f(Real32(i), 0.5f, 1 / 3.0f));
    }
}

ManyFields::ManyFields(const ManyFields &) = default;

ManyFields::~ManyFields() = default;

void ManyFields::dump(UInt32, const BitVector) const
{
    SLOG << "ManyFields" << endLog;
}

OSG_END_NAMESPACE
