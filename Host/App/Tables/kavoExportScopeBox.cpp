#include "Tables/kavoExportScopeBox.h"

#include <kavoScenegraph.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

kavoExportScopeBox::kavoExportScopeBox(QWidget *parent)
    : QGroupBox(tr("Nodes"), parent)
    , m_wholeScene(new QRadioButton(tr("&Whole scene")))
    , m_selection(new QRadioButton(tr("&Selected node and all below")))
    , m_allNodes(new QCheckBox(tr("Also nodes that are not fully &visible")))
{
    m_wholeScene->setChecked(true);
    m_selection->setEnabled(kavoScenegraph::getSelectedNode() != osg::NullFC);
    auto *layout = new QVBoxLayout(this);
    for (QWidget *choice : { static_cast<QWidget *>(m_wholeScene),
             static_cast<QWidget *>(m_selection), static_cast<QWidget *>(m_allNodes) })
        layout->addWidget(choice);
}

osg::NodePtr kavoExportScopeBox::root() const
{
    if (m_selection->isChecked())
        return kavoScenegraph::getSelectedNode();
    return kavoScenegraph::getRoot();
}

bool kavoExportScopeBox::takesAllNodes() const
{
    return m_allNodes->isChecked();
}
