#pragma once

#include <kavoSDKExport.h>

#include <boost/any.hpp>

#include <map>
#include <string>

/// A message between host and modules: an identifier (kavoMessageIds) and named attributes of any
/// type.
class KAVO_SDK_EXPORT kavoMessage
{
public:
    explicit kavoMessage(int id = 0);

    int id() const;

    /// Returns the value of an attribute, an empty one if it is missing. The reference is valid
    /// until the attribute is set again or the message is destroyed.
    const boost::any &get(const std::string &key) const;
    /// Stores a copy of the value and replaces an earlier one.
    void set(const std::string &key, const boost::any &value);

    /// Prints the current call stack on standard error, innermost call first.
    static void printBT();

private:
    int m_id;
    std::map<std::string, boost::any> m_attributes;
};
