#pragma once

#include <OpenSG/OSGStringConversionStateBase.h>

OSG_BEGIN_NAMESPACE

/// Lays out the strings of a field without touching what is in them: lines end between strings
/// only, where the next one would make them longer than `width`.
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
