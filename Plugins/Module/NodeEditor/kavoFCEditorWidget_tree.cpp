#include "kavoFCEditorWidget.h"

#include "kavoFieldText.h"

#include <OSGAnimNodeBase.h>
#include <kavoLog.h>
#include <kavoNodeUtils.h>
#include <kavoOpenSGCompat.h>

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGNode.h>

#include <QScopeGuard>
#include <QSet>

#include <utility>
#include <vector>

// A field, and the group that its row is added to.
struct kavoFCEditorWidget::FieldSource
{
    QtProperty *group;
    osg::FieldContainerPtr container;
    osg::BitVector mask;
    osg::Field *field;
    QString name;
    QString typeName;
};

struct kavoFCEditorWidget::Element
{
    QString label;
    osg::FieldContainerPtr container;
};

// A group and the containers to add to it.
struct kavoFCEditorWidget::List
{
    QtProperty *group;
    std::vector<Element> elements;
};

namespace {

// Pointers to owners, which are not followed. Their rows show the owner's id.
const QSet<QString> backLinks { "parent", "parents", "childs", "associated" };
// Pointers whose target is expanded in the tree.
const QSet<QString> openedLinks { "core", "material" };

QString titleOf(const osg::FieldContainerPtr &fc, const QString &name)
{
    return name + ' ' + fc->getTypeName() + " (" + QString::number(fc.getFieldContainerId()) + ')';
}

// Includes the name of a node, whose Name attachment is not shown.
QString shallowTitleOf(const osg::FieldContainerPtr &fc, const QString &name)
{
    const osg::NodePtr node = osg::NodePtr::dcast(fc);
    const QString title = titleOf(fc, name);
    return kavoNodeUtils::hasName(node) ? title + " name:" + kavoNodeUtils::getName(node) : title;
}

} // namespace

void kavoFCEditorWidget::setFC(
    QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand)
{
    if (fc == osg::NullFC)
        return;
    const osg::UInt32 id = fc.getFieldContainerId();
    if (m_path.contains(id) || m_path.size() >= maxDepth)
        return setFCnr(parent, fc, name, expand);
    if (m_bindings.size() >= maxRows)
        return addUnopened(parent, fc, name, expand);
    m_path.append(id);
    const auto leave = qScopeGuard([this] { m_path.removeLast(); });
    QtProperty *group = addGroup(parent, titleOf(fc, name));
    addFields(group, fc);
    finishGroup(group, expand);
}

// Fills the lists last, so that they cannot use up the rows that core and material need.
void kavoFCEditorWidget::addFields(QtProperty *group, const osg::FieldContainerPtr &fc)
{
    Lists lists;
    const osg::FieldContainerType &type = fc->getType();
    for (osg::UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const osg::FieldDescription *description = type.getFieldDescription(id);
        osg::Field *field = description ? fc->getField(id) : nullptr;
        if (field)
            addField({ group, fc, description->getFieldMask(), field, description->getCName(),
                         field->getType().getCName() },
                lists);
    }
    for (const List &list : lists) {
        for (const Element &element : list.elements)
            setFC(list.group, element.container, element.label, false);
    }
}

void kavoFCEditorWidget::setFCnr(
    QtProperty *parent, osg::FieldContainerPtr fc, const QString &name, bool expand)
{
    if (fc != osg::NullFC)
        finishGroup(addGroup(parent, shallowTitleOf(fc, name)), expand);
}

// The title of the first unopened container says that the tree is incomplete.
void kavoFCEditorWidget::addUnopened(
    QtProperty *parent, const osg::FieldContainerPtr &fc, const QString &name, bool expand)
{
    QString title = shallowTitleOf(fc, name);
    if (!std::exchange(m_isCut, true)) {
        title
            = tr("%1 - not opened: the tree ends at %2 rows").arg(title, QString::number(maxRows));
        kavoLog::error(
            "kavoFCEditorWidget::setFC: no more containers are opened, the tree has %zu rows",
            maxRows);
    }
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

void kavoFCEditorWidget::addField(const FieldSource &source, Lists &lists)
{
    const QByteArray contentType = source.field->getContentType().getCName();
    if (contentType == "AttachmentMap")
        addAttachments(source, lists);
    else if (!contentType.contains("Ptr"))
        addValueRow(source, kavoFieldText::valueOf(*source.field));
    else if (const RowText text
        = kavoFieldText::isSingle(*source.field) ? addPointer(source) : addPointers(source, lists))
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

void kavoFCEditorWidget::addAttachments(const FieldSource &source, Lists &lists)
{
    List list;
    for (const auto &entry : static_cast<osg::SFAttachmentMap *>(source.field)->getValue())
        list.elements.push_back({ QString::number(list.elements.size()), entry.second });
    if (list.elements.empty())
        return;
    list.group = addGroup(source.group, "attachments (AttachmentMap)");
    lists.push_back(std::move(list));
}

// Adds a group for the target, or returns the text of a value row.
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

// Adds groups for the elements, or returns the text of a value row.
kavoFCEditorWidget::RowText kavoFCEditorWidget::addPointers(const FieldSource &source, Lists &lists)
{
    const osg::UInt32 size = source.field->getSize();
    const bool listsNodes
        = source.container->getType().isDerivedFrom(osg::AnimNodeBase::getClassType());
    if (listsNodes && source.typeName == "MFNodePtr" && size <= kavoFieldText::maxListedElements)
        addNodes(source, lists);
    else if (source.typeName == "MFStateChunkPtr")
        addChunks(source);
    else if (source.typeName == "MFTransformVariantPtr" && size > 0)
        addVariants(source, lists);
    else
        return kavoFieldText::sizeOf(*source.field);
    return std::nullopt;
}

void kavoFCEditorWidget::addNodes(const FieldSource &source, Lists &lists)
{
    List list { addGroup(source.group, source.name), {} };
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i) {
        const auto node = osg::NodePtr::dcast(kavoOpenSG::target(source.field, i));
        list.elements.push_back({ kavoNodeUtils::getName(node), node });
    }
    lists.push_back(std::move(list));
}

// Deliberate: chunks have no label and are added directly below their material, expanded.
void kavoFCEditorWidget::addChunks(const FieldSource &source)
{
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i)
        setFC(source.group, kavoOpenSG::target(source.field, i), QString(), true);
}

// Deliberate: null elements are not counted, so the labels have no gaps.
void kavoFCEditorWidget::addVariants(const FieldSource &source, Lists &lists)
{
    List list { addGroup(source.group, source.name), {} };
    for (osg::UInt32 i = 0; i < source.field->getSize(); ++i) {
        const osg::FieldContainerPtr variant = kavoOpenSG::target(source.field, i);
        if (variant != osg::NullFC)
            list.elements.push_back({ QString::number(list.elements.size()), variant });
    }
    lists.push_back(std::move(list));
}
