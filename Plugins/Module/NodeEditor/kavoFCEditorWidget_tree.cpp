#include "kavoFCEditorWidget.h"

#include <OSGAnimNodeBase.h>
#include <kavoNodeUtils.h>
#include <kavoOpenSGCompat.h>

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNode.h>

#include <QScopeGuard>
#include <QSet>

// A field on its way into the tree: where it comes from and the group that it goes into.
struct kavoFCEditorWidget::FieldSource
{
    QtProperty *group;
    osg::FieldContainerPtr container;
    osg::BitVector mask;
    osg::Field *field;
    QString name;
    QString typeName;
};

namespace {

// Fields that lead back to an owner: their row shows the owner's id.
const QSet<QString> backLinks { "parent", "parents", "childs", "associated" };
// Fields whose target is opened in the tree.
const QSet<QString> openedLinks { "core", "material" };

bool isSingle(const osg::Field &field)
{
    return field.getCardinality() == osg::FieldType::SINGLE_FIELD;
}

QString textOf(const osg::Field &field)
{
    std::string text;
    field.getValueByStr(text);
    return QString::fromStdString(text);
}

QString sizeText(const osg::Field &field)
{
    return QString::asprintf("<size = %zu>", std::size_t(field.getSize()));
}

QString summaryText(const osg::Field &field)
{
    return QString::asprintf(
        "<type=%s> <size = %zu>", field.getContentType().getCName(), std::size_t(field.getSize()));
}

QString titleOf(const osg::FieldContainerPtr &fc, const QString &name)
{
    return name + ' ' + fc->getTypeName() + " (" + QString::number(fc.getFieldContainerId()) + ')';
}

}

void kavoFCEditorWidget::setFC(
    QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand)
{
    if (fc == osg::NullFC)
        return;
    if (!mayFill(fc.getFieldContainerId()))
        return setFCnr(parent, fc, name, expand);
    m_path.append(fc.getFieldContainerId());
    const auto leave = qScopeGuard([this] { m_path.removeLast(); });
    QtProperty *group = addGroup(parent, titleOf(fc, name));
    const osg::FieldContainerType &type = fc->getType();
    for (osg::UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const osg::FieldDescription *description = type.getFieldDescription(id);
        osg::Field *field = description ? fc->getField(id) : nullptr;
        if (field)
            addField({ group, fc, description->getFieldMask(), field, description->getCName(),
                field->getType().getCName() });
    }
    finishGroup(group, expand);
}

// Every tree ends: there can be more ways from one container to the next than there is memory.
bool kavoFCEditorWidget::mayFill(osg::UInt32 containerId) const
{
    return !m_path.contains(containerId) && m_path.size() < maxDepth && m_bindings.size() < maxRows;
}

void kavoFCEditorWidget::setFCnr(
    QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand)
{
    if (fc == osg::NullFC)
        return;
    QString title = titleOf(fc, name);
    const osg::NodePtr node = osg::NodePtr::dcast(fc);
    if (kavoNodeUtils::hasName(node))
        title += QStringLiteral(" name:") + kavoNodeUtils::getName(node);
    finishGroup(addGroup(parent, title), expand);
}

QtBrowserItem *kavoFCEditorWidget::collapseProperty(QtProperty *property)
{
    QtBrowserItem *item = items(property).value(0);
    if (item)
        setExpanded(item, false);
    return item;
}

QtProperty *kavoFCEditorWidget::addGroup(QtProperty *parent, const QString &title)
{
    QtProperty *group
        = m_variantManager->addProperty(QtVariantPropertyManager::groupTypeId(), title);
    if (parent) {
        parent->addSubProperty(group);
        collapseProperty(group);
    } else {
        addProperty(group);
    }
    return group;
}

void kavoFCEditorWidget::finishGroup(QtProperty *group, bool expand)
{
    if (QtBrowserItem *item = items(group).value(0); item && expand)
        setExpanded(item, true);
}

void kavoFCEditorWidget::addField(const FieldSource &source)
{
    const QByteArray contentType = source.field->getContentType().getCName();
    if (contentType == "AttachmentMap")
        addAttachments(source);
    else if (!contentType.contains("Ptr"))
        addValueRow(source, valueText(source));
    else if (const RowText text
        = isSingle(*source.field) ? addPointer(source) : addPointers(source))
        addValueRow(source, *text);
}

void kavoFCEditorWidget::addValueRow(const FieldSource &source, const QString &text)
{
    QtProperty *row = createPropertyItem(source.name, source.typeName, text);
    m_bindings.emplace(
        row, FieldBinding { source.container.getFieldContainerId(), source.field, source.mask });
    source.group->addSubProperty(row);
    collapseProperty(row);
}

QString kavoFCEditorWidget::valueText(const FieldSource &source)
{
    const osg::Field &field = *source.field;
    const bool listsNumbers = isNumberList(source.typeName) && field.getSize() < maxListedElements;
    if (isSingle(field) || listsNumbers)
        return beautifyFloats(source.typeName, textOf(field));
    return source.typeName.startsWith("MFString") ? textOf(field) : summaryText(field);
}

void kavoFCEditorWidget::addAttachments(const FieldSource &source)
{
    const auto &attachments = static_cast<osg::SFAttachmentMap *>(source.field)->getValue();
    if (attachments.empty())
        return;
    QtProperty *list = addGroup(source.group, "attachments (AttachmentMap)");
    int label = 0;
    for (const auto &entry : attachments)
        setFC(list, entry.second, QString::number(label++), false);
}

// Shows the target as a group of its own, or gives the text of the row to show instead.
kavoFCEditorWidget::RowText kavoFCEditorWidget::addPointer(const FieldSource &source)
{
    const osg::FieldContainerPtr target = kavoOpenSG::target(source.field);
    if (target == osg::NullFC)
        return "<unset>";
    if (backLinks.contains(source.name))
        return QString::number(target.getFieldContainerId());
    setFC(source.group, target, source.name, openedLinks.contains(source.name));
    return std::nullopt;
}

// Shows the elements as groups, or gives the text of the row to show instead.
kavoFCEditorWidget::RowText kavoFCEditorWidget::addPointers(const FieldSource &source)
{
    const osg::UInt32 size = source.field->getSize();
    const bool listsNodes
        = source.container->getType().isDerivedFrom(osg::AnimNodeBase::getClassType());
    if (listsNodes && source.typeName == "MFNodePtr" && size < maxListedElements)
        addNodes(source);
    else if (source.typeName == "MFStateChunkPtr")
        addChunks(source);
    else if (source.typeName == "MFTransformVariantPtr" && size > 0)
        addVariants(source);
    else
        return sizeText(*source.field);
    return std::nullopt;
}

void kavoFCEditorWidget::addNodes(const FieldSource &source)
{
    QtProperty *list = addGroup(source.group, source.name);
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i) {
        const auto node = osg::NodePtr::dcast(kavoOpenSG::target(source.field, i));
        setFC(list, node, kavoNodeUtils::getName(node), false);
    }
}

// Deliberate: chunks have no name and stand directly below their material, open.
void kavoFCEditorWidget::addChunks(const FieldSource &source)
{
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i)
        setFC(source.group, kavoOpenSG::target(source.field, i), QString(), true);
}

// Deliberate: null elements are not counted, the labels have no gaps.
void kavoFCEditorWidget::addVariants(const FieldSource &source)
{
    QtProperty *list = addGroup(source.group, source.name);
    int label = 0;
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i) {
        const osg::FieldContainerPtr variant = kavoOpenSG::target(source.field, i);
        if (variant != osg::NullFC)
            setFC(list, variant, QString::number(label++), false);
    }
}
