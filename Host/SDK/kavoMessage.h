#pragma once

#include <kavoSDKExport.h>

#include <boost/any.hpp>

#include <map>
#include <string>

/// A message of the host: an identifier (kavoMessageIds) and attributes of any type by name.
class KAVO_SDK_EXPORT kavoMessage
{
public:
    explicit kavoMessage(int id = 0);

    int id() const;

    /// The value stored under the key; an empty one where there is none. The reference lives until
    /// the attribute is set again or the message ends.
    const boost::any &get(const std::string &key) const;
    /// Stores a copy of the value; an earlier one of the same key is replaced.
    void set(const std::string &key, const boost::any &value);

    /// Prints the current call stack on standard error, innermost call first.
    static void printBT();

private:
    int m_id;
    std::map<std::string, boost::any> m_attributes;
};
