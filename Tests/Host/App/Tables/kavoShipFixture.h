#pragma once

#include "kavoTableFixture.h"

#include <kavoNodeUtils.h>

/// Tables of a hull with a mast and a deck, as text to be edited and imported.
struct kavoShipFixture : kavoTableFixture
{
    kavoShipFixture()
        : mast(kavoTestPairs::addNode(root, "Mast", { { "size", "2" }, { "color", "red" } }))
        , deck(kavoTestPairs::addNode(root, "Deck", { { "color", "blue" } }))
    {
    }

    /// A line about that child of the root.
    static QByteArray row(const osg::NodePtr &node, const QByteArray &cells)
    {
        const QByteArray name = kavoNodeUtils::getName(node);
        return QByteArray::number(node.getFieldContainerId()) + ",/Hull/" + name + ',' + name
            + ",Group," + cells + '\n';
    }

    static inline const QByteArray header = "id,path,name,type,color,size\n";

    osg::NodePtr mast, deck;
};
