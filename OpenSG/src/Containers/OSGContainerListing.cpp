#include <OpenSG/OSGFieldContainerFactory.h>

#include <OpenSG/OSGLog.h>

#include <iostream>

OSG_BEGIN_NAMESPACE

namespace {

void writeField(const FieldDescription &description, std::ostream &out)
{
    out << "    " << description.getCName() << ' ' << description.getFieldType().getCName()
        << (description.isInternal() ? "  [internal]\n" : "\n");
}

void writeType(const FieldContainerType &type, std::ostream &out)
{
    const FieldContainerType *parent = type.getParent();
    out << type.getCName() << " : " << (parent ? parent->getCName() : "")
        << (type.isAbstract() ? "  [abstract]\n" : "\n");
    const UInt32 inherited = parent ? parent->getNumFieldDescs() : 0;
    for (UInt32 id = inherited + 1; id <= type.getNumFieldDescs(); ++id) {
        writeField(*type.getFieldDescription(id), out);
    }
}

} // namespace

void FieldContainerFactory::writeFCD(const Char8 *name, std::ostream *out)
{
    std::ostream &target = out ? *out : std::cout;
    if (!name) {
        for (const auto &[id, type] : _types) {
            writeType(*type, target);
        }
    } else if (const FieldContainerType *type = findType(name)) {
        writeType(*type, target);
    } else {
        SWARNING << "FieldContainerFactory::writeFCD: there is no type " << name << endLog;
    }
}

OSG_END_NAMESPACE
