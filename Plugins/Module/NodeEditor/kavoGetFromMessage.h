#pragma once

#include <kavoMessage.h>

#include <boost/any.hpp>

#include <cstdio>
#include <cstring>
#include <string>
#include <typeinfo>

/// Copies an attribute out of a message if it is there and holds exactly a T.
///
/// Types are compared by name: type records of one type differ between libraries that hide their
/// symbols, their names do not.
/// \param value left as it is unless the result is true
/// \returns false if the attribute is missing, which is nothing unusual, and false, with a line and
///     the call stack on standard error, if it holds another type
template <class T> bool getFromMessage(const kavoMessage &message, const std::string &key, T &value)
{
    const boost::any &attribute = message.get(key);
    if (attribute.empty())
        return false;

    const char *is = attribute.type().name();
    const char *required = typeid(T).name();
    if (std::strcmp(is, required) != 0) {
        std::fprintf(stderr,
            "getFromMessage : Attribute '%s' has wrong type (is:'%s' != req:'%s')!\n", key.c_str(),
            is, required);
        kavoMessage::printBT();
        return false;
    }
    value = boost::any_cast<T>(attribute);
    return true;
}
