#include "kavoFCEditorWidget.h"

#include <kavoCallNames.h>
#include <kavoController.h>
#include <kavoGuarded.h>
#include <kavoLog.h>
#include <kavoMessage.h>
#include <kavoOpenSGCompat.h>

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGThread.h>

#include <cstdio>
#include <locale>
#include <memory>
#include <sstream>

namespace {

// The end of an edit as OpenSG does it, but for a thread without a change list and for the
// ignore-change switch.
void endEdit(const osg::FieldContainerPtr &container, osg::BitVector mask)
{
    if (osg::ChangeList *changes = osg::Thread::getCurrentChangeList())
        changes->addChanged(container, mask);
    if (!kavoOpenSG::changesIgnored())
        container->changed(mask, osg::ChangedOrigin::External);
}

bool isQuoted(const std::string &text)
{
    return text.size() >= 2 && text.front() == '"' && text.back() == '"';
}

// The library puts quotes around the string of a field when it writes it, but does not take them
// off when it reads one.
std::string inputFor(const osg::Field &field, const std::string &text)
{
    if (field.getType().getCName() != std::string("SFString") || !isQuoted(text))
        return text;
    std::string written;
    field.getValueByStr(written);
    return isQuoted(written) ? text.substr(1, text.size() - 2) : text;
}

// The abstract field interface knows no clear(). Types without a creator cannot be cleared.
bool clearField(osg::Field &field)
{
    const std::unique_ptr<osg::Field> empty(
        osg::FieldFactory::the().createField(field.getType().getId()));
    if (empty)
        field.setAbstrValue(*empty);
    return bool(empty);
}

}

// Only lists of numbers can be written: they are replaced, element by element. Text that stands for
// a list too long to be shown changes nothing.
bool kavoFCEditorWidget::writeList(osg::Field &field, QString text)
{
    if (!isNumberList(field.getType().getCName()) || text.startsWith("<type="))
        return false;
    if (!clearField(field))
        return false;
    text.replace(',', ' ');
    for (const QString &part : text.split(' ', Qt::SkipEmptyParts))
        field.pushValueByStr(part.toUtf8().constData());
    return true;
}

bool kavoFCEditorWidget::writeText(osg::Field &field, const QString &text)
{
    if (field.getCardinality() == osg::FieldType::MULTI_FIELD)
        return writeList(field, text);
    field.pushValueByStr(inputFor(field, text.toStdString()).c_str());
    return true;
}

// Writes the value that an edited row holds into its field. Rows that stand for no field are
// ignored.
void kavoFCEditorWidget::writeBack(QtProperty *property, const QString &value)
{
    const auto row = m_bindings.find(property);
    if (row == m_bindings.end())
        return;
    const FieldBinding binding = row->second;
    const osg::FieldContainerPtr container
        = osg::FieldContainerFactory::the()->getContainer(binding.containerId);
    if (container == osg::NullFC) {
        kavoLog::error("kavoFCEditorWidget::valueChanged: invalid pointer!");
        return;
    }
    kavoGuarded("Writing a field", [&] {
        if (writeText(*binding.field, value))
            endEdit(container, binding.fieldMask);
    });
}

void kavoFCEditorWidget::valueChanged(QtProperty *property, const QVariant &value)
{
    if (!m_building)
        writeBack(property, value.toString());
}

void kavoFCEditorWidget::valueChanged(QtProperty *property, unsigned int value)
{
    if (m_building)
        return;
    std::printf("property '%s' changed to '%d'\n", property->propertyName().toUtf8().constData(),
        static_cast<int>(value));
    writeBack(property, QString::number(value));
}

// Deliberate: the host renders its materials anew after every edit of a colour, and of a colour
// only, written or not.
void kavoFCEditorWidget::valueChanged(QtProperty *property, colorVal value)
{
    if (m_building)
        return;
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << value.r << ' ' << value.g << ' ' << value.b << ' ' << value.a;
    writeBack(property, QString::fromStdString(text.str()));

    kavoMessage message;
    kavoController::call(kavoCallNames::updateMatRender, message, 0);
}
