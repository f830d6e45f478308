#include "Tables/kavoValuePairs.h"

#include <kavoNodeQueries.h>

#include <algorithm>

namespace {

osg::ValuePairBasePtr find(const osg::NodePtr &node)
{
    return osg::ValuePairBasePtr::dcast(
        kavoNodeQueries::findAttachment(node, osg::ValuePairBase::getClassType()));
}

osg::ValuePairBasePtr findOrAttach(const osg::NodePtr &node)
{
    osg::ValuePairBasePtr pairs = find(node);
    if (pairs != osg::NullFC)
        return pairs;
    pairs = osg::ValuePairBase::create();
    osg::beginEditCP(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(pairs);
    osg::endEditCP(node, osg::Node::AttachmentsFieldMask);
    return pairs;
}

} // namespace

osg::ValuePairBase *kavoValuePairs::of(const osg::NodePtr &node)
{
    const osg::ValuePairBasePtr pairs = ::find(node);
    return pairs == osg::NullFC ? nullptr : static_cast<osg::ValuePairBase *>(pairs.getCPtr());
}

const std::string &kavoValuePairs::value(const osg::ValuePairBase &pairs, int index)
{
    static const std::string missing;
    const std::vector<std::string> &values = pairs.getValues().getValues();
    return index < int(values.size()) ? values[index] : missing;
}

void kavoValuePairs::setValue(const osg::NodePtr &node, int index, const std::string &value)
{
    const osg::ValuePairBasePtr pairs = ::find(node);
    osg::beginEditCP(pairs, osg::ValuePairBase::ValuesFieldMask);
    if (index >= int(pairs->getValues().size()))
        pairs->getValues().resize(index + 1);
    pairs->getValues().getValues()[index] = value;
    osg::endEditCP(pairs, osg::ValuePairBase::ValuesFieldMask);
}

void kavoValuePairs::append(
    const osg::NodePtr &node, const std::string &key, const std::string &value)
{
    const osg::BitVector both
        = osg::ValuePairBase::KeysFieldMask | osg::ValuePairBase::ValuesFieldMask;
    const osg::ValuePairBasePtr pairs = findOrAttach(node);
    osg::beginEditCP(pairs, both);
    const std::size_t count = pairs->getKeys().size();
    std::vector<std::string> &values = pairs->getValues().getValues();
    values.resize(std::max(values.size(), count));
    values.insert(values.begin() + std::ptrdiff_t(count), value);
    pairs->getKeys().push_back(key);
    osg::endEditCP(pairs, both);
}
