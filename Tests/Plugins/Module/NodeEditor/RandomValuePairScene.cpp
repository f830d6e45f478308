#include "RandomValuePairScene.h"

#include <OSGValuePairBase.h>

#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

namespace {

// The last three share their text up to the first NUL.
const std::string keyPool[] = { "color", "size", "B", "a", "", "\xC3\xA4", "z,z", "k",
    std::string("k\0x", 3), std::string("k\0", 2) };

const std::string pieces[]
    = { "\n", "\n\n", "x", ",", "\"", "\xC3\xA4", "\r\n", " ", "0.5", "long enough for the heap" };

}

RandomValuePairScene::RandomValuePairScene(unsigned seed)
    : m_random(seed)
{
}

kavoNodePtr RandomValuePairScene::make()
{
    return makeNode(0);
}

bool RandomValuePairScene::oneIn(int count)
{
    return below(count) == 0;
}

int RandomValuePairScene::below(int limit)
{
    return int(m_random() % unsigned(limit));
}

std::string RandomValuePairScene::text()
{
    std::string text;
    for (int i = below(5); i > 0; --i)
        text += pieces[below(std::size(pieces))];
    return text;
}

osg::NodePtr RandomValuePairScene::makeNode(int depth)
{
    const osg::NodePtr node = osg::Node::create();
    if (!oneIn(8))
        node->setCore(osg::Group::create());
    if (oneIn(2))
        osg::setName(node, text());
    else if (oneIn(3) && node->getCore() != osg::NullFC)
        osg::setName(node->getCore(), text());
    if (oneIn(5))
        node->setTravMask(m_random());
    if (!oneIn(3))
        addPairs(node);
    for (int i = depth < 4 ? below(5) : 0; i > 0; --i)
        node->addChild(makeNode(depth + 1));
    return node;
}

void RandomValuePairScene::addPairs(const osg::NodePtr &node)
{
    const osg::ValuePairBasePtr pairs = osg::ValuePairBase::create();
    const int count = below(6);
    for (int i = 0; i < count; ++i)
        pairs->getKeys().push_back(keyPool[below(std::size(keyPool))]);
    for (int i = oneIn(4) ? below(8) : count; i > 0; --i)
        pairs->getValues().push_back(text());
    node->addAttachment(pairs);
}
