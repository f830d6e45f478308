#include <OpenSG/OSGField.h>

#include <OpenSG/OSGFieldText.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

const FieldContainerPtr *Field::findHandle(UInt32) const
{
    return nullptr;
}

void Field::dumpText() const
{
    std::string text;
    osgLog() << getType().getName() << ": " << getValueByStr(text) << endLog;
}

std::string &FieldText::writeAll(const Field &field, std::string &out)
{
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        field.getValueByStr(out.append(i > 0 ? ", " : ""), i);
    }
    return out;
}

std::string &FieldText::writeAll(
    const Field &field, std::string &out, StringConversionStateBase &state)
{
    state.beginField(&field, out);
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        std::string text;
        state.addValueStr(field.getValueByStr(text, i), out);
    }
    return state.endField(&field, out);
}

void FieldText::reportNoWriter()
{
    SLOG << "Error To String Conversion not available for " << endLog;
}

void FieldText::reportNoReader()
{
    SLOG << "Error From String Conversion not available for " << endLog;
}

OSG_END_NAMESPACE
