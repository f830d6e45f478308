#include "kavoStraightforwardBrowser.h"

kavoStraightforwardBrowser::kavoStraightforwardBrowser()
{
    setFactoryForManager(&m_variants, &m_variantEditors);
    setFactoryForManager(&m_enums, &m_enumEditors);
    setFactoryForManager(&m_colors, &m_colorEditors);
    setPropertiesWithoutValueMarked(true);
    setRootIsDecorated(true);
}

void kavoStraightforwardBrowser::build(const kavoRecordedRow &top)
{
    addGroup(top, nullptr);
}

void kavoStraightforwardBrowser::empty()
{
    clear();
    m_variants.clear();
}

void kavoStraightforwardBrowser::buildClosed(const kavoRecordedRow &top)
{
    m_closesTop = true;
    build(top);
    m_closesTop = false;
}

void kavoStraightforwardBrowser::emptyRowsFirst()
{
    deleteRows(properties());
    empty();
}

void kavoStraightforwardBrowser::deleteRows(const QList<QtProperty *> &rows)
{
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) {
        deleteRows((*row)->subProperties());
        if ((*row)->propertyManager() == &m_variants)
            delete *row;
    }
}

void kavoStraightforwardBrowser::add(const kavoRecordedRow &row, QtProperty *parent)
{
    if (row.isGroup()) {
        addGroup(row, parent);
        return;
    }
    QtProperty *property = makeValue(row);
    parent->addSubProperty(property);
    collapse(property);
}

void kavoStraightforwardBrowser::addGroup(const kavoRecordedRow &row, QtProperty *parent)
{
    QtProperty *group = m_variants.addProperty(QtVariantPropertyManager::groupTypeId(), row.title);
    if (parent)
        parent->addSubProperty(group);
    else
        addProperty(group);
    QtBrowserItem *item = parent || m_closesTop ? collapse(group) : nullptr;
    for (const kavoRecordedRow &child : row.children)
        add(child, group);
    if (item && row.open)
        setExpanded(item, true);
}

QtProperty *kavoStraightforwardBrowser::makeValue(const kavoRecordedRow &row)
{
    QtProperty *property = nullptr;
    switch (row.manager) {
    case kavoRecordedRow::Variant:
        property = makeVariant(row);
        break;
    case kavoRecordedRow::Enum:
        property = m_enums.addProperty(row.title);
        m_enums.setValue(property, row.number);
        break;
    case kavoRecordedRow::Color:
        property = m_colors.addProperty(row.title);
        m_colors.setValue(property, row.color);
        break;
    }
    property->setToolTip(row.toolTip);
    return property;
}

QtProperty *kavoStraightforwardBrowser::makeVariant(const kavoRecordedRow &row)
{
    QtVariantProperty *property = m_variants.addProperty(row.type, row.title);
    property->setValue(row.text);
    for (const kavoRecordedRow &child : row.children)
        property->addSubProperty(makeValue(child));
    return property;
}

QtBrowserItem *kavoStraightforwardBrowser::collapse(QtProperty *property)
{
    QtBrowserItem *item = items(property).value(0);
    if (item)
        setExpanded(item, false);
    return item;
}
