#include <OpenSG/OSGStringAttributeMap.h>

OSG_BEGIN_NAMESPACE

void StringAttributeMap::setAttribute(const std::string &key, const std::string &value)
{
    const UInt32 index = indexOf(key);
    if (index == _mfKeys.size()) {
        _mfKeys.push_back(key);
    }
    _mfValues.resize(_mfKeys.size());
    _mfValues[index] = value;
}

bool StringAttributeMap::hasAttribute(const std::string &key) const
{
    return indexOf(key) < _mfKeys.size();
}

bool StringAttributeMap::getAttribute(const std::string &key, std::string &value) const
{
    const UInt32 index = indexOf(key);
    const bool found = index < _mfKeys.size() && index < _mfValues.size();
    if (found) {
        value = _mfValues[index];
    }
    return found;
}

const std::string StringAttributeMap::getAttribute(const std::string &key) const
{
    std::string value;
    getAttribute(key, value);
    return value;
}

UInt32 StringAttributeMap::indexOf(const std::string &key) const
{
    return static_cast<UInt32>(_mfKeys.find(key) - _mfKeys.begin());
}

OSG_END_NAMESPACE
