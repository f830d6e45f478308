#include "IO/OSGUnbrokenStringState.h"

#include <OpenSG/OSGField.h>

OSG_BEGIN_NAMESPACE

UnbrokenStringState::UnbrokenStringState(UInt32 indent, UInt32 width)
    : _indent(indent)
    , _width(width)
{
}

std::string &UnbrokenStringState::beginField(const Field *, std::string &outStr)
{
    _isFirst = true;
    _lineLength = 0;
    return outStr.append(_indent, ' ');
}

std::string &UnbrokenStringState::addValueStr(std::string &value, std::string &outStr)
{
    if (!_isFirst) {
        outStr += ", ";
    }
    if (_lineLength > 0 && _lineLength + value.size() > _width) {
        outStr.append(1, '\n').append(_indent, ' ');
        _lineLength = 0;
    }
    _lineLength += value.size() + 2;
    _isFirst = false;
    return outStr += value;
}

std::string &UnbrokenStringState::endField(const Field *, std::string &outStr)
{
    return outStr;
}

OSG_END_NAMESPACE
