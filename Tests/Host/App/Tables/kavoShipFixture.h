#pragma once

#include "kavoTableFixture.h"

#include <kavoNodeUtils.h>

/// A scene of a hull with a mast and a deck, and text for tables about it.
struct kavoShipFixture : kavoTableFixture
{
    kavoShipFixture()
        : mast(kavoTestPairs::addNode(root, "Mast", { { "size", "2" }, { "color", "red" } }))
        , deck(kavoTestPairs::addNode(root, "Deck", { { "color", "blue" } }))
    {
    }

    /// Returns a line of a table for a child of the root.
    static QByteArray row(const osg::NodePtr &node, const QByteArray &cells)
    {
        const QByteArray name = kavoNodeUtils::getName(node);
        return QByteArray::number(node.getFieldContainerId()) + ",/Hull/" + name + ',' + name
            + ",Group," + cells + '\n';
    }

    static inline const QByteArray header = "id,path,name,type,color,size\n";

    osg::NodePtr mast, deck;
};
