#include "Window/kavoEditActions.h"

#include <kavoScenegraph.h>

#include <QApplication>
#include <QClipboard>
#include <QMenu>

kavoEditActions::kavoEditActions(QAction *deletion, QMenu *menu)
    : QObject(menu)
{
    menu->addAction(
        tr("Select &Parent"), this, &kavoEditActions::selectParent, QKeySequence(tr("Alt+Up")));
    menu->addAction(
        tr("&Deselect"), this, &kavoEditActions::selectNothing, QKeySequence(tr("Ctrl+Shift+A")));
    menu->addSeparator();
    menu->addAction(deletion);
    menu->addAction(tr("&Copy Name of Selected Node"), this, &kavoEditActions::copyName,
        QKeySequence(tr("Ctrl+Shift+C")));
}

void kavoEditActions::selectParent()
{
    const kavoNodePtr selected = kavoScenegraph::getSelectedNode();
    if (selected != osg::NullFC && selected->getParent() != osg::NullFC)
        kavoScenegraph::setSelectedNode(selected->getParent());
}

void kavoEditActions::selectNothing()
{
    kavoScenegraph::setSelectedNode(osg::NullFC);
}

void kavoEditActions::copyName()
{
    const char *name = kavoScenegraph::getNodeName(kavoScenegraph::getSelectedNode());
    QApplication::clipboard()->setText(QString::fromUtf8(name));
}
