#pragma once

#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// Lays out the strings of a field and leaves their contents alone. A line ends only between
/// strings, if the next string would make it longer than `width`.
class UnbrokenStringState : public StringConversionStateBase
{
public:
    explicit UnbrokenStringState(UInt32 indent = 0, UInt32 width = 80);

    std::string &beginField(const Field *pF, std::string &outStr) override;
    std::string &addValueStr(std::string &value, std::string &outStr) override;
    std::string &endField(const Field *pF, std::string &outStr) override;

private:
    UInt32 _indent;
    UInt32 _width;
    std::size_t _lineLength = 0;
    bool _isFirst = true;
};

OSG_END_NAMESPACE
