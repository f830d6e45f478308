#pragma once

#include <OpenSG/OSGStringAttributeMapBase.h>

#include <string>

OSG_BEGIN_NAMESPACE

/// Texts by name. The key and the value with the same index belong together.
class StringAttributeMap : public StringAttributeMapBase
{
    typedef StringAttributeMapBase Inherited;

public:
    /// The caller has to begin and end the edit.
    void setAttribute(const std::string &key, const std::string &value);
    bool hasAttribute(const std::string &key) const;
    /// Returns false and leaves `value` alone if there is none.
    bool getAttribute(const std::string &key, std::string &value) const;
    /// Returns an empty text if there is none.
    const std::string getAttribute(const std::string &key) const;

    const MFString &getKeys() const { return _mfKeys; }
    const MFString &getValues() const { return _mfValues; }

protected:
    friend class FieldContainer;

    StringAttributeMap() = default;
    StringAttributeMap(const StringAttributeMap &) = default;
    ~StringAttributeMap() override = default;

private:
    /// Returns the count of pairs if there is none.
    UInt32 indexOf(const std::string &key) const;
};

OSG_END_NAMESPACE
