#include "Window/kavoFieldPrinter.h"

#include "Basics/kavoStandardOutput.h"
#include "Basics/kavoTaskError.h"

#include <OpenSG/OSGField.h>
#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerFactory.h>

#include <QCoreApplication>

#include <string>

void kavoFieldPrinter::print(const QString &address)
{
    const osg::UInt32 id = address.section('.', 0, 0).toUInt();
    const std::string name = address.section('.', 1).toStdString();
    const osg::FieldContainerPtr container = osg::FieldContainerFactory::the()->getContainer(id);
    const osg::Field *field
        = container != osg::NullFC ? container->getField(name.c_str()) : nullptr;
    if (!field)
        throw kavoTaskError(
            QCoreApplication::translate("kavoFieldPrinter", "There is no field '%1'").arg(address));
    std::string text;
    field->getValueByStr(text);
    kavoStandardOutput::write(QByteArray::fromStdString(text + '\n'));
}
