#include <OpenSG/OSGField.h>

#include <OpenSG/OSGFieldText.h>
#include <OpenSG/OSGLog.h>

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

void FieldText::reportNoWriter()
{
    SLOG << "Error To String Conversion not available for " << endLog;
}

void FieldText::reportNoReader()
{
    SLOG << "Error From String Conversion not available for " << endLog;
}

OSG_END_NAMESPACE
