#include "Import/kavoMetadataReader.h"

#include <OSGValuePairBase.h>

#include <QString>
#include <assimp/scene.h>

#include <limits>

namespace {

// The shortest text that reads back as the same number.
template <class Number> std::string number(Number value)
{
    using Limits = std::numeric_limits<Number>;
    int digits = Limits::digits10;
    QString text = QString::number(double(value), 'g', digits);
    while (Number(text.toDouble()) != value && digits < Limits::max_digits10)
        text = QString::number(double(value), 'g', ++digits);
    return text.toStdString();
}

std::string toText(const aiVector3D &v)
{
    return number(v.x) + ' ' + number(v.y) + ' ' + number(v.z);
}

template <class T> const T &valueOf(const aiMetadataEntry &entry)
{
    return *static_cast<const T *>(entry.mData);
}

std::string toText(const aiMetadataEntry &entry)
{
    switch (entry.mType) {
    case AI_BOOL:
        return valueOf<bool>(entry) ? "true" : "false";
    case AI_INT32:
        return std::to_string(valueOf<int32_t>(entry));
    case AI_UINT64:
        return std::to_string(valueOf<uint64_t>(entry));
    case AI_FLOAT:
        return number(valueOf<float>(entry));
    case AI_DOUBLE:
        return number(valueOf<double>(entry));
    case AI_AISTRING:
        return valueOf<aiString>(entry).C_Str();
    case AI_AIVECTOR3D:
        return toText(valueOf<aiVector3D>(entry));
    default:
        return std::string(); // nested metadata keeps its key alone
    }
}

osg::ValuePairBasePtr makePairs(const aiMetadata &metadata)
{
    auto pairs = osg::ValuePairBase::create();
    const osg::CPEditor edit(pairs);
    for (unsigned int i = 0; i < metadata.mNumProperties; ++i) {
        pairs->getKeys().push_back(metadata.mKeys[i].C_Str());
        pairs->getValues().push_back(toText(metadata.mValues[i]));
    }
    return pairs;
}

} // namespace

void kavoMetadataReader::attach(const osg::NodePtr &node, const aiMetadata *metadata)
{
    if (!metadata || metadata->mNumProperties == 0)
        return;
    const osg::CPEditor edit(node, osg::Node::AttachmentsFieldMask);
    node->addAttachment(makePairs(*metadata));
}
