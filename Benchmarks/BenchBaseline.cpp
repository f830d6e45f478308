#include "BenchBaseline.h"

BenchBaseline::BenchBaseline()
{
    setFactoryForManager(&m_variants, &m_variantEditors);
    setFactoryForManager(&m_enums, &m_enumEditors);
    setFactoryForManager(&m_colors, &m_colorEditors);
    setPropertiesWithoutValueMarked(true);
    setRootIsDecorated(true);
}

void BenchBaseline::build(const BenchRow &top)
{
    addGroup(top, nullptr);
}

void BenchBaseline::empty()
{
    clear();
    m_variants.clear();
}

void BenchBaseline::buildClosed(const BenchRow &top)
{
    m_closesTop = true;
    build(top);
    m_closesTop = false;
}

void BenchBaseline::emptyRowsFirst()
{
    deleteRows(properties());
    empty();
}

void BenchBaseline::deleteRows(const QList<QtProperty *> &rows)
{
    for (QtProperty *row : rows) {
        deleteRows(row->subProperties());
        if (row->propertyManager() == &m_variants)
            delete row;
    }
}

void BenchBaseline::add(const BenchRow &row, QtProperty *parent)
{
    if (row.isGroup()) {
        addGroup(row, parent);
        return;
    }
    QtProperty *property = makeValue(row);
    parent->addSubProperty(property);
    collapse(property);
}

void BenchBaseline::addGroup(const BenchRow &row, QtProperty *parent)
{
    QtProperty *group = m_variants.addProperty(QtVariantPropertyManager::groupTypeId(), row.title);
    if (parent)
        parent->addSubProperty(group);
    else
        addProperty(group);
    QtBrowserItem *item = parent || m_closesTop ? collapse(group) : nullptr;
    for (const BenchRow &child : row.children)
        add(child, group);
    if (item && row.open)
        setExpanded(item, true);
}

QtProperty *BenchBaseline::makeValue(const BenchRow &row)
{
    QtProperty *property = nullptr;
    switch (row.manager) {
    case BenchRow::Variant:
        property = makeVariant(row);
        break;
    case BenchRow::Enum:
        property = m_enums.addProperty(row.title);
        m_enums.setValue(property, row.number);
        break;
    case BenchRow::Color:
        property = m_colors.addProperty(row.title);
        m_colors.setValue(property, row.color);
        break;
    }
    property->setToolTip(row.toolTip);
    return property;
}

QtProperty *BenchBaseline::makeVariant(const BenchRow &row)
{
    QtVariantProperty *property = m_variants.addProperty(row.type, row.title);
    property->setValue(row.text);
    for (const BenchRow &child : row.children)
        property->addSubProperty(makeValue(child));
    return property;
}

QtBrowserItem *BenchBaseline::collapse(QtProperty *property)
{
    QtBrowserItem *item = items(property).value(0);
    if (item)
        setExpanded(item, false);
    return item;
}
