#include "kavoTestPairs.h"

#include "kavoTestScene.h"

namespace kavoTestPairs {

bool Pair::operator==(const Pair &other) const
{
    return key == other.key && value == other.value;
}

osg::NodePtr addNode(const osg::NodePtr &parent, const char *name, const std::vector<Pair> &pairs)
{
    const osg::NodePtr node = kavoTestScene::makeGroup(name, parent);
    if (pairs.empty())
        return node;
    const osg::ValuePairBasePtr attachment = osg::ValuePairBase::create();
    for (const Pair &pair : pairs) {
        attachment->getKeys().push_back(pair.key);
        attachment->getValues().push_back(pair.value);
    }
    node->addAttachment(attachment);
    return node;
}

osg::ValuePairBasePtr attachment(const osg::NodePtr &node)
{
    return osg::ValuePairBasePtr::dcast(
        node->findAttachment(osg::ValuePairBase::getClassType().getGroupId()));
}

std::vector<Pair> of(const osg::NodePtr &node)
{
    std::vector<Pair> pairs;
    const osg::ValuePairBasePtr found = attachment(node);
    for (osg::UInt32 i = 0; found != osg::NullFC && i < found->getKeys().size(); ++i) {
        const bool hasValue = i < found->getValues().size();
        pairs.push_back({ found->getKeys()[i], hasValue ? found->getValues()[i] : std::string() });
    }
    return pairs;
}

} // namespace kavoTestPairs
