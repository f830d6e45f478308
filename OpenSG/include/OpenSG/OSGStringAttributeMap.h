#pragma once

#include <OpenSG/OSGStringAttributeMapBase.h>

#include <string>

OSG_BEGIN_NAMESPACE

/// Texts by name: `keys` and `values` belong together by index.
class StringAttributeMap : public StringAttributeMapBase
{
    typedef StringAttributeMapBase Inherited;

public:
    /// Announces no edit.
    void setAttribute(const std::string &key, const std::string &value);
    bool hasAttribute(const std::string &key) const;
    /// False, and `value` stays, if there is none.
    bool getAttribute(const std::string &key, std::string &value) const;
    /// Empty if there is none.
    const std::string getAttribute(const std::string &key) const;

    const MFString &getKeys() const { return _mfKeys; }
    const MFString &getValues() const { return _mfValues; }

protected:
    friend class FieldContainer;

    StringAttributeMap() = default;
    StringAttributeMap(const StringAttributeMap &) = default;
    ~StringAttributeMap() override = default;

private:
    /// The number of pairs if there is none.
    UInt32 indexOf(const std::string &key) const;
};

OSG_END_NAMESPACE
